// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "base/FileStamp.h"
#include "base/TempFolder.h"
#include "base/Workplace.h"
#include "history/CarriedComments.h"
#include "history/ExportLines.h"
#include "settings/Language.h"

#include <cstddef>
#include <deque>
#include <span>
#include <string>
#include <vector>

// The exports that stitch was given: plain logbooks, service archives and own archives. Archives are unpacked
// into folders of the temporary folder, which last as long as this object.
class StitchSources {
  public:
    StitchSources(const TempFolder& tempFolder, Language language)
        : tempFolder_(tempFolder), language_(language) {}

    // Reads the lines of a source. False when that failed, which has then been reported.
    bool Add(const std::string& path);

    // As the user named it.
    const std::string& Name(std::size_t source) const { return sources_[source].Name; }

    std::span<const ExportLines> Exports() const { return exports_; }

    // True when writing a file would replace or remove one of the sources.
    bool Include(const std::string& path) const;

    // False when the logbook of a source has changed since it was read, which has then been reported.
    bool AreUnchanged() const;

    // Appends the comments of a source. False when they cannot be read, which has then been reported.
    bool AppendComments(std::size_t source, const CodePage& codePage,
                        std::vector<CommentOfExport>& comments) const;

    // The filter file that an own archive brought; "" = none.
    const std::string& FilterFile(std::size_t source) const { return sources_[source].FilterFile; }

  private:
    struct Source {
        std::string Name;
        std::string LogbookFile;
        std::string CommentsFile;
        std::string CommentsName; // in messages
        std::string FilterFile;
        std::optional<FileStamp> Stamp; // of the logbook file
    };

    bool Resolve(const std::string& path, Source& source);
    void TellOfCommentsBeside(const std::string& logbook) const;
    bool MoveApart(std::string& file, const char* name);

    const TempFolder& tempFolder_;
    Language language_;
    std::deque<Workplace> workplaces_; // two archives may bring files of one name
    std::vector<Source> sources_;
    std::vector<ExportLines> exports_;
};
