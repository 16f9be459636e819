// SPDX-License-Identifier: MIT
#include "settings/Texts.h"

#include <array>
#include <cstddef>

namespace {

using Group = AccessKeyGroup;

// Texts stand here as the program has always shown them, also where they look odd. mnuVContent is "&Inhalt"
// in both languages.
constexpr auto Table = std::to_array<TextRow>({
    // The menus of the main window
    {TextId::mnuFile, "&File", "&Datei", Group::MenuBar},
    {TextId::mnuView, "&View", "&Ansicht", Group::MenuBar},
    {TextId::mnuExtras, "E&xtras", "E&xtras", Group::MenuBar},
    {TextId::mnuHelp, "&Help", "&Hilfe", Group::MenuBar},
    {TextId::mnuFileOpen, "&Open...", "Ö&ffnen...", Group::FileMenu},
    {TextId::mnuFileZipLogbook, "&Save log into archive", "&Logbuch in Archiv speichern...", Group::FileMenu},
    {TextId::mnuFileExit, "E&xit", "&Beenden", Group::FileMenu},
    {TextId::mnuViewToolbar, "&Tool bar", "&Symbolleiste", Group::ViewMenu},
    {TextId::mnuViewStatusBar, "&Status bar", "S&tatusleiste", Group::ViewMenu},
    {TextId::mnuVContent, "&Inhalt", "&Inhalt", Group::ViewMenu},
    {TextId::mnuViewRefresh, "&Refresh", "&Aktualisieren", Group::ViewMenu},
    {TextId::mnuExtrasSearch, "&Find...", "&Suchen...", Group::ExtrasMenu},
    {TextId::mnuExtrasFindNext, "Find &next", "Suche &nächstes", Group::ExtrasMenu},
    {TextId::mnuExtrasFindPrev, "Find &previous", "Suche &vorheriges", Group::ExtrasMenu},
    {TextId::mnuExtrasFilters, "&Log filter settings...", "&Logbuch Filtereinstellungen...",
     Group::ExtrasMenu},
    {TextId::mnuExtrasDialogLanguage, "&Dialog language...", "&Dialogsprache...", Group::ExtrasMenu},
    {TextId::mnuHelpContents, "&Contents", "&Inhalt", Group::HelpMenu},
    {TextId::mnuHelpSearch, "&Search", "&Suche", Group::HelpMenu},
    {TextId::mnuHelpAbout, "&About...", "&Über...", Group::HelpMenu},
    {TextId::mnuPopupToggle, "&Toggle highlighting", "&Markierung ein/ausschalten", Group::PopupMenu},
    {TextId::mnuPopupRemove, "Remove from list", "&Entfernen", Group::PopupMenu},
    {TextId::mnuPopupProperties, "&View...", "&Ansehen...", Group::PopupMenu},
    {TextId::mnuPopupEditFilter, "&Edit filter settings...", "&Filtereinstellungen bearbeiten...",
     Group::PopupMenu},
    // The tool bar; its other tips are those of the menu items
    {TextId::ToolBarRefresh, "Refresh", "Aktualisieren"},
    // The columns of the logbook list
    {TextId::ColumnEvent, "Event type", "Ereignistyp"},
    {TextId::ColumnData, "Data", "Inhalt"},
    {TextId::ColumnSender, "Sender", "Quelle"},
    {TextId::ColumnName, "Name", "Name"},
    {TextId::ColumnTime, "Time", "Zeit"},
    {TextId::ColumnIndex, "Index", "Index"},
    {TextId::ColumnComment, "Comment", "Kommentar"},
    // The status bar
    {TextId::StatusReady, "Ready", "Bereit"},
    {TextId::StatusReading, "Reading log...", "Lese Logbuch..."},
    {TextId::StatusFiltering, "Filtering log...", "Filtere Logbuch..."},
    {TextId::StatusCommenting, "Commenting", "Commenting"},
    {TextId::StatusExtracting, "Extracting...", "Extrahiere..."},
    {TextId::StatusZipping, "Zipping...", "Packe ZIP Datei..."},
    {TextId::CountSeparator, "/", "/"},
    {TextId::CountUnit, "Items", "Einträge"},
    // Messages of the main window
    {TextId::FilterFailed, "Error applying filters", "Fehler beim Anwenden der Filtereinstellungen"},
    {TextId::OpenFailed, "Error opening logbook file", "Fehler beim Zugriff auf das Logbuch"},
    {TextId::ReadFailed, "Error reading logbook file", "Fehler beim Lesen des Logbuchs"},
    {TextId::FilterError, "Filter error", "Fehler beim Filtern der Datei"},
    {TextId::LogbookCorrupt, "Logbook is corrupted", "Logbuch ist fehlerhaft"},
    {TextId::EndReached, "End reached", "Ende erreicht"},
    {TextId::BeginReached, "Begin reached", "Anfang erreicht"},
    {TextId::AskSaveComments, "Comments edited. Save into logbook archive?",
     "Sie haben Kommentare bearbeitet. In Logbuch-Archiv speichern?"},
    {TextId::AskRestoreComments, "Comments on this logbook were not saved the last time. Restore them?",
     "Kommentare zu diesem Logbuch wurden beim letzten Mal nicht gespeichert. Wiederherstellen?"},
    {TextId::CommentNotNoted,
     "Comments are not secured against a crash: ", "Kommentare sind nicht gegen einen Absturz gesichert: "},
    {TextId::ArchiveWithoutLogbook, "The archive contains no logbook file",
     "Das Archiv enthält keine Logbuchdatei"},
    {TextId::AskReplaceFilters, "Replace active filter list?", "Aktuelle Filterliste ersetzen?"},
    {TextId::NoHelpFile, "This application has no help file.",
     "Hilfeinhalt konnte nicht angezeigt werden. Dieser Anwendung ist keine Hilfedatei zugeordnet."},
    {TextId::PageSetup, "Page &Setup", "Seite &einrichten"},
    {TextId::UsageHeading, "Qorvix command line parameters:", "Qorvix Kommandozeilenparameter:"},
    {TextId::UsageFile, " <file name>: Log/Service file name", " <file name>: Log-/Service-Zip Datiename"},
    {TextId::UsageEmbedded, " -EMB: Embedded mode", " -EMB: Embedded mode"},
    // Names of controls without a caption, for screen readers
    {TextId::lvLogbook, "Logbook", "Logbuch"},
    {TextId::pbTagViewer, "Overview of highlighted rows", "Übersicht der markierten Zeilen"},
    {TextId::txContent, "Contents of the selected row", "Inhalt der gewählten Zeile"},
    {TextId::ProgressBar, "Progress", "Fortschritt"},
    // The file dialogs of the main window
    {TextId::OpenTitle, "Open", "Öffnen"},
    {TextId::OpenFilter,
     "All logbook files|*.log;*.qorvix;*.a;service*.zip|Logbook files (*.log)|*.log|Logbook archives "
     "(*.qorvix)|*.qorvix|ZEK logbook files (*.a)|*.a|Service files (service*.zip)|service*.zip",
     "Alle Logbuch-Dateien|*.log;*.qorvix;*.a;service*.zip|Logbuch-Dateien (*.log)|*.log|Logbuch-Archive "
     "(*.qorvix)|*.qorvix|ZEK Logbuch-Dateien (*.a)|*.a|Service-Dateien (service*.zip)|service*.zip"},
    {TextId::SaveArchiveTitle, "Save Archive", "Archiv speichern"},
    {TextId::SaveArchiveFilter, "Logbook archive (*.qorvix)|*.qorvix", "Logbuch-Archiv (*.qorvix)|*.qorvix"},
    // Filter types
    {TextId::FilterTypeAll, "All entries", "Alle Einträge"},
    {TextId::FilterTypeInfo, "Info", "Information"},
    {TextId::FilterTypeWarning, "Warning", "Warnung"},
    {TextId::FilterTypeError, "Error", "Fehler"},
    {TextId::FilterTypeFatal, "System error", "Systemfehler"},
    {TextId::FilterTypeStatus, "Program status change", "Programmstatus Änderung (STIB)"},
    {TextId::FilterTypeKey, "Key", "Tastenbetätigung"},
    {TextId::FilterTypeRestart, "Restart", "Restart"},
    {TextId::FilterTypeNumbers, "Entry number(s)", "Nur bestimmte Nummern"},
    {TextId::FilterTypeKeystr, "Keystr", "Zeichenfolgen"},
    // Predefined strings of the filter dialogs
    {TextId::StringFilterN938, "\"Key without function N938\"-Error",
     "\"Taste ohne Funktion N938\"-Fehlermeldungen"},
    {TextId::StringFilterN940, "\"Key without function N940\"-Error",
     "\"Taste ohne Funktion N940\"-Fehlermeldungen"},
    // Filter files
    {TextId::FilterFileUnreadableBefore, "Cannot read filter file  \"", "Filterdatei \""},
    {TextId::FilterFileUnreadableAfter, "\"", "\" kann nicht gelesen werden"},
    {TextId::FilterFileNoFilters, "File includes no filter informaion!",
     "Datei enthält keine Filterinformationen!"},
    {TextId::FilterFileLine, "invalid filter in line ", "ungültiger Filter in Zeile "},
    // Why an archive is not opened
    {TextId::ZipNoArchive, "not a zip archive", "kein ZIP-Archiv"},
    {TextId::ZipDamaged, "the archive is damaged", "das Archiv ist beschädigt"},
    {TextId::ZipEncrypted, "the archive is encrypted", "das Archiv ist verschlüsselt"},
    {TextId::ZipTooLarge, "a member is larger than 4 GiB", "eine Datei darin ist größer als 4 GiB"},
    {TextId::ZipTooDense, "a member claims more than a thousand times its packed size",
     "eine Datei darin gibt mehr als das Tausendfache ihrer gepackten Größe an"},
    {TextId::ZipFiltersTooLarge, "its filter list is larger than 64 MiB",
     "seine Filterliste ist größer als 64 MiB"},
    {TextId::ZipCommentsTooLarge, "its comments are larger than 2 GiB",
     "seine Kommentare sind größer als 2 GiB"},
    {TextId::ZipNotUnpacked, "the temporary folder cannot be written to",
     "in den temporären Ordner kann nicht geschrieben werden"},
    // Comments files
    {TextId::CommentsFileNoComments, "File includes no comment information!",
     "File includes no comment information!"},
    {TextId::CommentsFileUnreadable, "Cannot read comments file", "Kommentardatei kann nicht gelesen werden"},
    // Why a filter or comments file, or another one, is not read or written
    {TextId::NoRegularFile, "not a regular file", "keine gewöhnliche Datei"},
    {TextId::FileTooLarge, "the file is too large", "die Datei ist zu groß"},
    {TextId::LineTooLong, "a line is too long", "eine Zeile ist zu lang"},
    {TextId::TooManyLines, "the file has too many lines", "die Datei hat zu viele Zeilen"},
    {TextId::ForeignLink, "another user's link in a folder that all may write to",
     "Verknüpfung eines anderen Benutzers in einem Ordner, in den alle schreiben dürfen"},
    {TextId::UnknownReason, "Unknown error ", "Unbekannter Fehler "},
    // Saving an archive
    {TextId::ArchiveNotSaved, "The archive could not be saved", "Das Archiv konnte nicht gespeichert werden"},
    {TextId::ArchiveCommentsLose, "Entries whose comments have characters that the archive cannot hold: ",
     "Einträge mit Zeichen im Kommentar, die das Archiv nicht aufnehmen kann: "},
    {TextId::ArchiveFiltersLose, "Filters with characters that the archive cannot hold: ",
     "Filter mit Zeichen, die das Archiv nicht aufnehmen kann: "},
    {TextId::AskArchiveAll, "Each of these characters becomes \"?\" in the archive. Save all the same?",
     "Jedes dieser Zeichen wird im Archiv zu \"?\". Trotzdem speichern?"},
    {TextId::AskReplaceFile, " already exists. Replace it?", " existiert bereits. Ersetzen?"},
    {TextId::AskArchiveChangedLogbook,
     "The logbook file has been changed since it was read. In the archive, comments may belong to other "
     "entries. Save all the same?",
     "Die Logbuchdatei wurde geändert, seit sie gelesen wurde. Im Archiv können Kommentare zu anderen "
     "Einträgen gehören. Trotzdem speichern?"},
    {TextId::LogbookChangedMeanwhile, "the logbook file was changed meanwhile",
     "die Logbuchdatei wurde inzwischen geändert"},
    {TextId::AskReplaceChangedArchive,
     "The archive has been changed since you opened or saved it, perhaps in another window. Its comments and "
     "filters would be replaced. Save all the same?",
     "Das Archiv wurde geändert, seit Sie es geöffnet oder gespeichert haben, vielleicht in einem anderen "
     "Fenster. Seine Kommentare und Filter würden ersetzt. Trotzdem speichern?"},
    {TextId::ArchiveChangedMeanwhile, "the archive was changed meanwhile",
     "das Archiv wurde inzwischen geändert"},
    {TextId::ArchiveInPlaceOfLogbook, "the archive would replace the logbook file itself",
     "das Archiv würde die Logbuchdatei selbst ersetzen"},
    {TextId::ArchiveInTemporaryFolder, "what lies in this folder is deleted when the program ends",
     "was in diesem Ordner liegt, wird am Programmende gelöscht"},
    {TextId::NoTemporaryFolder, "there is no temporary folder", "es gibt keinen temporären Ordner"},
    // The status text for a table of facilities
    {TextId::FacilityFileLine, "invalid facility in line ", "ungültiges Modul in Zeile "},
    {TextId::FacilityFileTooLong, "one facility too many in line ", "ein Modul zu viel in Zeile "},
    // The filter list dialog
    {TextId::LogbookSettingsTitle, "Filters", "Filter"},
    {TextId::lvFilter,
     "&List of filters to apply:", "&Liste der anzuwendenden Filter:", Group::FilterListDialog},
    {TextId::FilterColumnType, "Event", "Ereignis"},
    {TextId::FilterColumnString, "String/List", "String"},
    {TextId::FilterColumnName, "Name", "Name"},
    {TextId::FilterColumnEmitter, "Sender", "Quelle"},
    {TextId::cmdApply, "&Apply", "Über&nehmen", Group::FilterListDialog},
    {TextId::cmdExport, "Sa&ve filter list", "Filterliste spei&chern", Group::FilterListDialog},
    // In English the same key as the list's: the key goes from one to the other.
    {TextId::cmdImport, "&Load filter list", "Filterliste la&den", Group::FilterListDialog},
    {TextId::ExportFiltersTitle, "Export Filters", "Filter exportieren"},
    {TextId::ExportFiltersFilter, "Filter Files (*.fil)|*.fil", "Filter Dateien (*.fil)|*.fil"},
    {TextId::ImportFiltersTitle, "Import Filters", "Filter importieren"},
    {TextId::ImportFiltersFilter, "Filter Files (*.fil)|*.fil|All Files (*.*)|*.*",
     "Filter Dateien (*.fil)|*.fil|Alle Dateien (*.*)|*.*"},
    {TextId::FilterFileDirection, "Direction", "Richtung"},
    {TextId::FilterListEmpty, "You have no filter in the list",
     "Sie haben keinen Filter in der Liste eingetragen."},
    {TextId::AskShowAll, "Show all items?", "Möchten Sie alle Einträge anzeigen?"},
    {TextId::FiltersThatLose, "Filters with characters that a filter file cannot hold: ",
     "Filter mit Zeichen, die eine Filterdatei nicht aufnehmen kann: "},
    {TextId::AskExportAll, "Each of these characters becomes \"?\" in the file. Save all the same?",
     "Jedes dieser Zeichen wird in der Datei zu \"?\". Trotzdem speichern?"},
    {TextId::mnuFilterAdd, "&Add...", "&Neu...", Group::FilterPopupMenu},
    {TextId::mnuFilterRemove, "&Remove", "&Löschen", Group::FilterPopupMenu},
    {TextId::mnuFilterEdit, "&Edit...", "&Bearbeiten...", Group::FilterPopupMenu},
    // The filter definition dialog
    {TextId::FilterSettingsTitle, "Filter definition", "Filterdefinition"},
    {TextId::cbFilterType, "&Event:", "&Ereignis:", Group::FilterDefinitionDialog},
    {TextId::cbEmitter, "Se&nder:", "&Quelle:", Group::FilterDefinitionDialog},
    {TextId::cbName, "Na&me:", "&Name:", Group::FilterDefinitionDialog},
    {TextId::cbStringFilter, "Contained &string:", "Enthaltener &String:", Group::FilterDefinitionDialog},
    {TextId::NumberList, "&List of Numbers:", "&Liste von Nummern:", Group::FilterDefinitionDialog},
    {TextId::cmdPredefinedStrings, "&Predefined...", "&Vordefinierte...", Group::FilterDefinitionDialog},
    {TextId::FilterAction, "If above filter conditions meet, the log entries are",
     "Wenn obige Filterbedingungen zutreffen werden die Logeinträge"},
    {TextId::obExcludeFilter, "&Removed from the list", "&aus der Liste entfernt",
     Group::FilterDefinitionDialog},
    {TextId::obIncludeFilter, "&Added to the list", "&in die Liste aufgenommen",
     Group::FilterDefinitionDialog},
    {TextId::obHighlightFilter, "&Highlighted", "&markiert", Group::FilterDefinitionDialog},
    {TextId::FilterWithSeparator,
     "A filter with \"|\" cannot be stored: the whole list would fall back to the default filter.",
     "Ein Filter mit \"|\" kann nicht gespeichert werden: Die ganze Liste würde auf den Standardfilter "
     "zurückfallen."},
    {TextId::FilterTooLong,
     "This filter is too long to be stored: the whole list would fall back to the default filter.",
     "Dieser Filter ist zu lang, um gespeichert zu werden: Die ganze Liste würde auf den Standardfilter "
     "zurückfallen."},
    // The string filter dialogs
    {TextId::StringSettingsTitle, "String Filter", "Zeichenfolge-Filter"},
    {TextId::lvFilterStrings, "&List of predefined string filters:",
     "&Liste der vordefinierten Zeichenfolgen-Filter:", Group::StringListDialog},
    {TextId::StringColumnString, "String", "Zeichenfolge"},
    {TextId::StringColumnComment, "Comment", "Kommentar"},
    {TextId::FilterStringTitle, "Definition of string filters", "Definition Zeichenfolge-Filter"},
    {TextId::tbString, "&String:", "&Zeichenfolge:", Group::StringDialog},
    {TextId::tbComment, "&Comment:", "&Kommentar:", Group::StringDialog},
    {TextId::StringWithSeparator, "\"|\" cannot be stored: the text would be cut there.",
     "\"|\" kann nicht gespeichert werden: Der Text würde dort abgeschnitten."},
    {TextId::StringTooLong, "This string filter is too long to be stored: it would be lost.",
     "Dieser Zeichenfolge-Filter ist zu lang, um gespeichert zu werden: Er ginge verloren."},
    // The command-line tool
    {TextId::ListNotWritten, "the list could not be written", "die Liste konnte nicht geschrieben werden"},
    {TextId::FileNotWritten, " could not be written", " konnte nicht geschrieben werden"},
    {TextId::ListInPlaceOfSource, "the list would replace the file that it is made from",
     "die Liste würde die Datei ersetzen, aus der sie entsteht"},
    // The event entry dialog, and the labels in the comment that it proposes
    {TextId::EventEntryTitle, "Event entry", "Ereignis-Eintrag"},
    {TextId::lbEvent, "Event type:", "Ereignistyp:"},
    {TextId::lbIdent, "Data:", "Inhalt:"},
    {TextId::lbEmitter, "Sender:", "Quelle:"},
    {TextId::lbName, "Name:", "Name:"},
    {TextId::lbTime, "Time:", "Zeit:"},
    {TextId::lbIndex, "Index:", "Index:"},
    {TextId::lbEventID, "Event ID:", "Ereignis-ID:"},
    {TextId::lbComment, "&Comment:", "&Kommentar:", Group::EventEntryDialog},
    {TextId::ReasonLabel, "Reason:", "Ursache:"},
    {TextId::FixLabel, "Fix:", "Behebung:"},
    {TextId::ReactionLabel, "Reaction:", "Reaktion:"},
    // The find dialog; its Cancel is ButtonCancel
    {TextId::SearchTitle, "Search", "Suchen"},
    {TextId::lblSearchString, "Find &string:", "Suchen &nach:", Group::SearchDialog},
    {TextId::checkboxWholeWord, "Match &whole words only", "Nur ganze &Wörter suchen", Group::SearchDialog},
    {TextId::checkboxCaseSensitive, "&Case sensitive", "Groß-/&Kleinschreibung beachten",
     Group::SearchDialog},
    {TextId::frameDirection, "Direction", "Richtung"},
    {TextId::obAscending, "&Up", "A&ufwärts", Group::SearchDialog},
    {TextId::obDescending, "&Down", "A&bwärts", Group::SearchDialog},
    {TextId::ButtonFind, "&Find", "&Suchen", Group::SearchDialog},
    // The help window
    {TextId::HelpTitle, "Qorvix Help", "Qorvix-Hilfe"},
    {TextId::HelpContentsTab, "&Contents", "&Inhalt", Group::HelpWindow},
    {TextId::HelpSearchTab, "&Search", "&Suche", Group::HelpWindow},
    {TextId::HelpBack, "&Back", "&Zurück", Group::HelpWindow},
    {TextId::HelpForward, "F&orward", "&Vorwärts", Group::HelpWindow},
    {TextId::HelpLargerText, "&Larger text", "Schrift &größer", Group::HelpWindow},
    {TextId::HelpSmallerText, "S&maller text", "Schrift &kleiner", Group::HelpWindow},
    {TextId::HelpNormalText, "&Normal text", "Schrift &normal", Group::HelpWindow},
    {TextId::HelpSearchLabel, "&Words to find:", "Gesuchte &Wörter:", Group::HelpWindow},
    {TextId::HelpSearchButton, "&Find", "&Finden", Group::HelpWindow},
    {TextId::HelpHits, "Pages found", "Gefundene Seiten"},
    {TextId::HelpPagesFound, "Pages found: ", "Gefundene Seiten: "},
    {TextId::HelpNothingFound, "No page holds all of these words.", "Keine Seite enthält alle diese Wörter."},
    {TextId::HelpPage, "Page of the help", "Seite der Hilfe"},
    {TextId::HelpPageUnreadable, "This page of the help cannot be read.",
     "Diese Seite der Hilfe kann nicht gelesen werden."},
    // The about box
    {TextId::AboutTitle, "About Qorvix", "Über Qorvix"},
    {TextId::AboutDesignation, "Logbook Viewer", "Logbuch-Viewer"},
    {TextId::AboutVersion, "Version ", "Version "},
    {TextId::AboutLicence, "Licence: MIT", "Lizenz: MIT"},
    {TextId::AboutLibraries, "Libraries in use", "Verwendete Bibliotheken"},
    {TextId::AboutLicenceText, "Text of the licence", "Text der Lizenz"},
    // The language dialog
    {TextId::LanguageTitle, "Change Language", "Sprache auswählen"},
    {TextId::LanguageLabel, "&Dialog language:", "&Dialogsprache:", Group::LanguageDialog},
    {TextId::LanguageNote, "Note: The user interface supports only English and German",
     "Hinweis: Die Benutzeroberfläche unterstützt nur Englisch und Deutsch"},
    {TextId::ButtonOK, "OK", "OK"},
    {TextId::ButtonCancel, "Cancel", "Abbrechen"},
    // The rows of the language dialog, in the order of their numbers
    {TextId::LanguageEnglish, "English", "Englisch"},
    {TextId::LanguageGerman, "German", "Deutsch"},
    {TextId::LanguageItalian, "Italian", "Italienisch"},
    {TextId::LanguageSpanish, "Spanish", "Spanisch"},
    {TextId::LanguageFrench, "French", "Französisch"},
    {TextId::LanguageSwedish, "Swedish", "Schwedisch"},
    {TextId::LanguageFinnish, "Finnish", "Finnisch"},
    {TextId::LanguageCzech, "Czech", "Tschechisch"},
    {TextId::LanguagePolish, "Polish", "Polnisch"},
    {TextId::LanguageDanish, "Danish", "Dänisch"},
    {TextId::LanguageDutch, "Dutch", "Niederländisch"},
});

constexpr bool RowsAreInOrder() {
    for (std::size_t i = 0; i < Table.size(); ++i)
        if (static_cast<std::size_t>(Table[i].Id) != i)
            return false;
    return true;
}
static_assert(RowsAreInOrder());

} // namespace

std::span<const TextRow> TextTable() { return Table; }

std::string_view Text(TextId id, Language language) {
    const TextRow& row = Table[static_cast<std::size_t>(id)];
    return language.IsGerman() ? row.German : row.English;
}
