// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileStamp.h"
#include "cli/Messages.h"
#include "cli/TerminalUser.h"
#include "filter/FilterDefinition.h"
#include "logbook/Logbook.h"
#include "settings/Language.h"
#include "sources/LogbookSource.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// What the program must not remove when it clears up: the files that a command is about, and its own place.
std::vector<std::filesystem::path> KeptFiles(const std::vector<std::string>& files);

// A file beside a logbook, and what messages call it.
struct SourceFile {
    std::string Path; // "" = none
    std::string Name;
};

// A source that a command works on, and the logbook in it.
struct SourceLogbook {
    LogbookSource Source;
    std::optional<FileStamp> Stamp; // of the logbook file before it was read
    Logbook Book;

    // The file that an option names, or that of the source.
    SourceFile Comments(const std::string& option) const {
        return option.empty() ? SourceFile{Source.CommentsFile, Source.CommentsName}
                              : SourceFile{option, option};
    }
    SourceFile Filters(const std::string& option) const {
        return option.empty() ? SourceFile{Source.FilterFile, Source.FilterName} : SourceFile{option, option};
    }
};

// Finds the logbook of a source and reads it. False when that failed, which has then been told. Files of an
// archive lie in the temporary folder.
bool ReadSource(const std::string& file, SourceLogbook& logbook, const TempFolder& tempFolder,
                TerminalUser& user, Language language, const CodePage& codePage);

// Reads a comments file, and a filter file, of the logbook. False when that failed, which has then been told.
bool ReadComments(const SourceFile& file, SourceLogbook& logbook, Language language,
                  const CodePage& codePage);
bool ReadFilters(const SourceFile& file, std::vector<FilterDefinition>& filters, Language language,
                 const CodePage& codePage);
