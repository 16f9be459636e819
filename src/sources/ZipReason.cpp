// SPDX-License-Identifier: MIT
#include "sources/ZipReason.h"

#include "settings/ReasonText.h"
#include "settings/Texts.h"

#include <zip.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

// The library's errors by number, because newer versions know more of them.
struct Row {
    int Code;
    std::string_view English;
    std::string_view German;
};
constexpr auto Table = std::to_array<Row>({
    {0, "No error", "Kein Fehler"},
    {1, "Multi-disk zip archives not supported", "ZIP-Archive in mehreren Teilen werden nicht unterstützt"},
    {2, "Renaming temporary file failed", "Die temporäre Datei konnte nicht umbenannt werden"},
    {3, "Closing zip archive failed", "Das ZIP-Archiv konnte nicht geschlossen werden"},
    {4, "Seek error", "Fehler beim Positionieren"},
    {5, "Read error", "Lesefehler"},
    {6, "Write error", "Schreibfehler"},
    {7, "CRC error", "Falsche Prüfsumme"},
    {8, "Containing zip archive was closed", "Das ZIP-Archiv wurde inzwischen geschlossen"},
    {9, "No such file", "Datei nicht gefunden"},
    {10, "File already exists", "Die Datei existiert bereits"},
    {11, "Can't open file", "Die Datei kann nicht geöffnet werden"},
    {12, "Failure to create temporary file", "Es konnte keine temporäre Datei angelegt werden"},
    {13, "Zlib error", "Fehler beim Packen oder Entpacken"},
    {14, "Malloc failure", "Nicht genug Speicher"},
    {15, "Entry has been changed", "Die Datei im Archiv wurde geändert"},
    {16, "Compression method not supported", "Die Packmethode wird nicht unterstützt"},
    {17, "Premature end of file", "Die Datei endet zu früh"},
    {18, "Invalid argument", "Ungültiges Argument"},
    {19, "Not a zip archive", "Kein ZIP-Archiv"},
    {20, "Internal error", "Interner Fehler"},
    {21, "Zip archive inconsistent", "Das ZIP-Archiv ist in sich widersprüchlich"},
    {22, "Can't remove file", "Die Datei kann nicht gelöscht werden"},
    {23, "Entry has been deleted", "Die Datei im Archiv wurde gelöscht"},
    {24, "Encryption method not supported", "Das Verschlüsselungsverfahren wird nicht unterstützt"},
    {25, "Read-only archive", "Das Archiv ist schreibgeschützt"},
    {26, "No password provided", "Das Kennwort fehlt"},
    {27, "Wrong password provided", "Falsches Kennwort"},
    {28, "Operation not supported", "Der Vorgang wird nicht unterstützt"},
    {29, "Resource still in use", "Es wird noch darauf zugegriffen"},
    {30, "Tell error", "Die Stelle in der Datei kann nicht bestimmt werden"},
    {31, "Compressed data invalid", "Die gepackten Daten sind ungültig"},
    {32, "Operation cancelled", "Der Vorgang wurde abgebrochen"},
    {33, "Unexpected length of data", "Unerwartete Länge der Daten"},
    {34, "Not allowed in torrentzip", "In diesem ZIP-Format nicht erlaubt"},
    {35, "Possibly truncated or corrupted zip archive", "Das ZIP-Archiv ist unvollständig oder beschädigt"},
});

std::string Words(int code, Language language) {
    const auto row =
        std::find_if(Table.begin(), Table.end(), [&](const Row& known) { return known.Code == code; });
    if (row != Table.end())
        return std::string(language.IsGerman() ? row->German : row->English);
    return std::string(Text(TextId::UnknownReason, language)) + std::to_string(code);
}

} // namespace

std::string ZipReason(zip_error& error, Language language) {
    const int code = zip_error_code_zip(&error);
    // The packing code's own words are English in every locale.
    if (!language.IsGerman() && zip_error_system_type(&error) == ZIP_ET_ZLIB)
        return zip_error_strerror(&error);
    const std::string words = Words(code, language);
    return zip_error_system_type(&error) == ZIP_ET_SYS
               ? words + ": " + SystemReason(zip_error_code_system(&error), language)
               : words;
}
