// SPDX-License-Identifier: MIT
#pragma once

#include "sources/ArchivedComments.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The decisions before an archive is saved, in this order. In the window the person makes them, in the tool
// options do.
class ArchiveDecisions {
  public:
    virtual ~ArchiveDecisions() = default;

    // Which archive to save, with a proposal of its folder and name. Nothing when none is to be saved.
    virtual std::optional<std::string> Archive(const std::string& folder, const std::string& name) = 0;

    // What becomes of the comments that would be lost with the archive that is replaced. Only comments of
    // this logbook can be kept. `changedByOthers` says that the logbook came from this archive, or was saved
    // as it last, and that the archive has changed since.
    enum class OldComments : std::uint8_t { Replace, Keep, Cancel };
    virtual OldComments DecideOn(const ArchivedComments& lost, bool changedByOthers) = 0;

    // Whether to save the archive although these texts lose characters in it (see TextsThatLose).
    virtual bool AgreesToLosses(std::string_view losses) = 0;

    // Whether to save the logbook file as it is now, although it has changed since it was read.
    virtual bool AgreesToChangedLogbook() = 0;
};
