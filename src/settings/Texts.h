// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <cstdint>
#include <span>
#include <string_view>

// Every text of the program that a person sees, by its id. A control's text has the control's name.
enum class TextId : std::uint16_t {
    // The menus of the main window
    mnuFile,
    mnuView,
    mnuExtras,
    mnuHelp,
    mnuFileOpen,
    mnuFileZipLogbook,
    mnuFileExit,
    mnuViewToolbar,
    mnuViewStatusBar,
    mnuVContent,
    mnuViewRefresh,
    mnuExtrasSearch,
    mnuExtrasFindNext,
    mnuExtrasFindPrev,
    mnuExtrasFilters,
    mnuExtrasDialogLanguage,
    mnuHelpContents,
    mnuHelpSearch,
    mnuHelpAbout,
    mnuPopupToggle,
    mnuPopupRemove,
    mnuPopupProperties,
    mnuPopupEditFilter,
    // The tool bar; its other tips are those of the menu items
    ToolBarRefresh,
    // The columns of the logbook list
    ColumnEvent,
    ColumnData,
    ColumnSender,
    ColumnName,
    ColumnTime,
    ColumnIndex,
    ColumnComment,
    // The status bar
    StatusReady,
    StatusReading,
    StatusFiltering,
    StatusCommenting,
    StatusExtracting,
    StatusZipping,
    CountSeparator,
    CountUnit,
    // Messages of the main window
    FilterFailed,
    OpenFailed,
    ReadFailed,
    FilterError,
    LogbookCorrupt,
    EndReached,
    BeginReached,
    AskSaveComments,
    AskRestoreComments,
    CommentNotNoted,
    ArchiveWithoutLogbook,
    AskReplaceFilters,
    NoHelpFile,
    PageSetup,
    UsageHeading,
    UsageFile,
    UsageEmbedded,
    // Names of controls without a caption, for screen readers
    lvLogbook,
    pbTagViewer,
    txContent,
    ProgressBar,
    // The file dialogs of the main window
    OpenTitle,
    OpenFilter,
    SaveArchiveTitle,
    SaveArchiveFilter,
    // Filter types
    FilterTypeAll,
    FilterTypeInfo,
    FilterTypeWarning,
    FilterTypeError,
    FilterTypeFatal,
    FilterTypeStatus,
    FilterTypeKey,
    FilterTypeRestart,
    FilterTypeNumbers,
    FilterTypeKeystr,
    // Predefined strings of the filter dialogs
    StringFilterN938,
    StringFilterN940,
    // Filter files
    FilterFileUnreadableBefore,
    FilterFileUnreadableAfter,
    FilterFileNoFilters,
    FilterFileLine,
    // Why an archive is not opened
    ZipNoArchive,
    ZipDamaged,
    ZipEncrypted,
    ZipTooLarge,
    ZipTooDense,
    ZipNotUnpacked,
    // Comments files
    CommentsFileNoComments,
    CommentsFileUnreadable,
    // Saving an archive
    ArchiveNotSaved,
    ArchiveCommentsLose,
    ArchiveFiltersLose,
    AskArchiveAll,
    AskReplaceFile,
    AskArchiveChangedLogbook,
    LogbookChangedMeanwhile,
    AskReplaceChangedArchive,
    ArchiveChangedMeanwhile,
    ArchiveInPlaceOfLogbook,
    ArchiveInTemporaryFolder,
    NoTemporaryFolder,
    // The status text for a table of facilities
    FacilityFileLine,
    FacilityFileTooLong,
    // The filter list dialog
    LogbookSettingsTitle,
    lvFilter,
    FilterColumnType,
    FilterColumnString,
    FilterColumnName,
    FilterColumnEmitter,
    cmdApply,
    cmdExport,
    cmdImport,
    ExportFiltersTitle,
    ExportFiltersFilter,
    ImportFiltersTitle,
    ImportFiltersFilter,
    FilterFileDirection,
    FilterListEmpty,
    AskShowAll,
    FiltersThatLose,
    AskExportAll,
    mnuFilterAdd,
    mnuFilterRemove,
    mnuFilterEdit,
    // The filter definition dialog
    FilterSettingsTitle,
    cbFilterType,
    cbEmitter,
    cbName,
    cbStringFilter,
    NumberList,
    cmdPredefinedStrings,
    FilterAction,
    obExcludeFilter,
    obIncludeFilter,
    obHighlightFilter,
    FilterWithSeparator,
    FilterTooLong,
    // The string filter dialogs
    StringSettingsTitle,
    lvFilterStrings,
    StringColumnString,
    StringColumnComment,
    FilterStringTitle,
    tbString,
    tbComment,
    StringWithSeparator,
    StringTooLong,
    // The command-line tool
    ListNotWritten,
    FileNotWritten,
    ListInPlaceOfSource,
    // The event entry dialog, and the labels in the comment that it proposes
    EventEntryTitle,
    lbEvent,
    lbIdent,
    lbEmitter,
    lbName,
    lbTime,
    lbIndex,
    lbEventID,
    lbComment,
    ReasonLabel,
    FixLabel,
    ReactionLabel,
    // The find dialog; its Cancel is ButtonCancel
    SearchTitle,
    lblSearchString,
    checkboxWholeWord,
    checkboxCaseSensitive,
    frameDirection,
    obAscending,
    obDescending,
    ButtonFind,
    // The help window
    HelpTitle,
    HelpContentsTab,
    HelpSearchTab,
    HelpBack,
    HelpForward,
    HelpLargerText,
    HelpSmallerText,
    HelpNormalText,
    HelpSearchLabel,
    HelpSearchButton,
    HelpHits,
    HelpPagesFound,
    HelpNothingFound,
    HelpPage,
    HelpPageUnreadable,
    // The about box
    AboutTitle,
    AboutDesignation,
    AboutVersion,
    AboutLicence,
    AboutLibraries,
    AboutLicenceText,
    // The language dialog
    LanguageTitle,
    LanguageLabel,
    LanguageNote,
    ButtonOK,
    ButtonCancel,
    // The rows of the language dialog, in the order of their numbers
    LanguageEnglish,
    LanguageGerman,
    LanguageItalian,
    LanguageSpanish,
    LanguageFrench,
    LanguageSwedish,
    LanguageFinnish,
    LanguageCzech,
    LanguagePolish,
    LanguageDanish,
    LanguageDutch,
};

// Where the access keys of texts, marked by "&", must differ from each other.
enum class AccessKeyGroup : std::uint8_t {
    None,
    MenuBar,
    FileMenu,
    ViewMenu,
    ExtrasMenu,
    HelpMenu,
    PopupMenu,
    EventEntryDialog,
    SearchDialog,
    LanguageDialog,
    FilterListDialog,
    FilterPopupMenu, // of both lists of the filter dialogs
    FilterDefinitionDialog,
    StringListDialog,
    StringDialog,
    HelpWindow,
};

struct TextRow {
    TextId Id;
    std::string_view English;
    std::string_view German;
    AccessKeyGroup Group = AccessKeyGroup::None;
};

// The table, a row for each id in the order of the ids.
std::span<const TextRow> TextTable();

// A text in the language of the user interface, UTF-8.
std::string_view Text(TextId id, Language language);
