// SPDX-License-Identifier: MIT
#include "settings/ReasonText.h"

#include "base/FileProblem.h"
#include "settings/Texts.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace {

// The system's own words depend on the locale of the process, which need not be the language of the program.
constexpr auto Table = std::to_array<SystemReasonRow>({
    {EPERM, "Operation not permitted", "Der Vorgang ist nicht erlaubt"},
    {ENOENT, "No such file or directory", "Datei oder Ordner nicht gefunden"},
    {EINTR, "Interrupted system call", "Der Systemaufruf wurde unterbrochen"},
    {EIO, "Input/output error", "Ein-/Ausgabefehler"},
    {ENXIO, "No such device or address", "Gerät oder Adresse nicht gefunden"},
    {E2BIG, "Argument list too long", "Die Argumentliste ist zu lang"},
    {EBADF, "Bad file descriptor", "Die Datei ist dafür nicht geöffnet"},
    {ECHILD, "No child processes", "Es gibt keinen Unterprozess"},
    {EAGAIN, "Resource temporarily unavailable", "Im Augenblick nicht verfügbar"},
    {ENOMEM, "Cannot allocate memory", "Nicht genug Speicher"},
    {EACCES, "Permission denied", "Keine Berechtigung"},
    {EFAULT, "Bad address", "Ungültige Adresse"},
    {EBUSY, "Device or resource busy", "Das Gerät oder die Datei wird gerade benutzt"},
    {EEXIST, "File exists", "Die Datei existiert bereits"},
    {EXDEV, "Invalid cross-device link", "Das Ziel liegt auf einem anderen Datenträger"},
    {ENODEV, "No such device", "Gerät nicht gefunden"},
    {ENOTDIR, "Not a directory", "Kein Ordner"},
    {EISDIR, "Is a directory", "Ein Ordner, keine Datei"},
    {EINVAL, "Invalid argument", "Ungültiges Argument"},
    {ENFILE, "Too many open files in system", "Im System sind zu viele Dateien geöffnet"},
    {EMFILE, "Too many open files", "Zu viele Dateien sind geöffnet"},
    {ENOTTY, "Inappropriate ioctl for device", "Das Gerät kann das nicht"},
    {EFBIG, "File too large", "Die Datei ist zu groß"},
    {ENOSPC, "No space left on device", "Auf dem Datenträger ist kein Platz mehr"},
    {ESPIPE, "Illegal seek", "In der Datei kann nicht gesucht werden"},
    {EROFS, "Read-only file system", "Der Datenträger ist schreibgeschützt"},
    {EMLINK, "Too many links", "Zu viele Verweise"},
    {EPIPE, "Broken pipe", "Die Gegenstelle liest nicht mehr"},
    {EDOM, "Numerical argument out of domain", "Das Argument liegt außerhalb des Wertebereichs"},
    {ERANGE, "Numerical result out of range", "Das Ergebnis liegt außerhalb des Wertebereichs"},
    {EDEADLK, "Resource deadlock avoided", "Gegenseitige Sperren wurden vermieden"},
    {ENAMETOOLONG, "File name too long", "Der Dateiname ist zu lang"},
    {ENOLCK, "No locks available", "Es sind keine Sperren verfügbar"},
    {ENOSYS, "Function not implemented", "Das System kann das nicht"},
    {ENOTEMPTY, "Directory not empty", "Der Ordner ist nicht leer"},
    {ELOOP, "Too many levels of symbolic links", "Zu viele Verweise hintereinander"},
    {EOVERFLOW, "Value too large for defined data type", "Der Wert ist zu groß"},
    {EILSEQ, "Invalid or incomplete multibyte or wide character", "Ungültiges Zeichen im Namen"},
    {ENODATA, "No data available", "Keine Daten vorhanden"},
    {EBADMSG, "Bad message", "Die Daten auf dem Datenträger sind beschädigt"},
    {EPROTO, "Protocol error", "Protokollfehler"},
    {EOPNOTSUPP, "Operation not supported", "Der Vorgang wird nicht unterstützt"},
    {ECANCELED, "Operation canceled", "Der Vorgang wurde abgebrochen"},
    {ETIMEDOUT, "Connection timed out", "Zeitüberschreitung der Verbindung"},
    {ECONNREFUSED, "Connection refused", "Die Verbindung wurde abgelehnt"},
    {ECONNRESET, "Connection reset by peer", "Die Gegenstelle hat die Verbindung beendet"},
    {ECONNABORTED, "Software caused connection abort", "Die Verbindung wurde abgebrochen"},
    {ENOTCONN, "Transport endpoint is not connected", "Es besteht keine Verbindung"},
    {ENETDOWN, "Network is down", "Das Netzwerk ist ausgefallen"},
    {ENETUNREACH, "Network is unreachable", "Das Netzwerk ist nicht erreichbar"},
    {ENETRESET, "Network dropped connection on reset", "Das Netzwerk hat die Verbindung beendet"},
    {EHOSTUNREACH, "No route to host", "Der Rechner ist nicht erreichbar"},
    {ENOBUFS, "No buffer space available", "Kein Pufferspeicher verfügbar"},
    {ETXTBSY, "Text file busy", "Das Programm wird gerade ausgeführt"},
    {ENOLINK, "Link has been severed", "Die Verbindung wurde getrennt"},
#ifdef __linux__
    {ENOTBLK, "Block device required", "Kein blockorientiertes Gerät"},
    {ENONET, "Machine is not on the network", "Der Rechner ist nicht im Netzwerk"},
    {EREMOTE, "Object is remote", "Die Datei liegt auf einem anderen Rechner"},
    {ECOMM, "Communication error on send", "Fehler beim Senden"},
    {EUSERS, "Too many users", "Zu viele Benutzer"},
    {ESHUTDOWN, "Cannot send after transport endpoint shutdown", "Die Verbindung wurde beendet"},
    {EHOSTDOWN, "Host is down", "Der Rechner ist ausgefallen"},
    {ESTALE, "Stale file handle", "Die Datei ist auf dem Server nicht mehr dieselbe"},
    {EUCLEAN, "Structure needs cleaning", "Das Dateisystem muss repariert werden"},
    {EREMOTEIO, "Remote I/O error", "Ein-/Ausgabefehler des anderen Rechners"},
    {EDQUOT, "Disk quota exceeded", "Das Kontingent auf dem Datenträger ist erschöpft"},
    {ENOMEDIUM, "No medium found", "Kein Datenträger eingelegt"},
    {EMEDIUMTYPE, "Wrong medium type", "Falsche Art von Datenträger"},
    {ENOKEY, "Required key not available", "Der nötige Schlüssel fehlt"},
    {EKEYEXPIRED, "Key has expired", "Der Schlüssel ist abgelaufen"},
    {EKEYREVOKED, "Key has been revoked", "Der Schlüssel wurde widerrufen"},
    {EKEYREJECTED, "Key was rejected by service", "Der Schlüssel wurde abgelehnt"},
    {EHWPOISON, "Memory page has hardware error", "Ein Teil des Speichers ist defekt"},
#endif
});

std::string_view ProblemText(FileProblem problem, Language language) {
    switch (problem) {
    case FileProblem::NoRegularFile:
        return Text(TextId::NoRegularFile, language);
    case FileProblem::TooLarge:
        return Text(TextId::FileTooLarge, language);
    case FileProblem::LineTooLong:
        return Text(TextId::LineTooLong, language);
    case FileProblem::TooManyLines:
        return Text(TextId::TooManyLines, language);
    case FileProblem::ForeignLink:
        return Text(TextId::ForeignLink, language);
    }
    return {};
}

std::string Unknown(int number, Language language) {
    return std::string(Text(TextId::UnknownReason, language)) + std::to_string(number);
}

} // namespace

std::span<const SystemReasonRow> SystemReasonTable() { return Table; }

std::string SystemReason(int number, Language language) {
    const auto row = std::find_if(Table.begin(), Table.end(),
                                  [&](const SystemReasonRow& known) { return known.Number == number; });
    return row != Table.end() ? std::string(language.IsGerman() ? row->German : row->English)
                              : Unknown(number, language);
}

std::string ReasonText(const std::error_code& error, Language language) {
    if (error.category() == FileProblems())
        if (const std::string_view text = ProblemText(static_cast<FileProblem>(error.value()), language);
            !text.empty())
            return std::string(text);
    // The general number of the reason, where the system has numbers of its own.
    const std::error_condition reason = error.default_error_condition();
    return reason.category() == std::generic_category() ? SystemReason(reason.value(), language)
                                                        : Unknown(error.value(), language);
}
