// SPDX-License-Identifier: MIT
#pragma once

#include "sources/ArchivedComments.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// What is decided before an archive is saved: in the window by the person, in the tool by options. The
// decisions come in this order.
class ArchiveDecisions {
  public:
    virtual ~ArchiveDecisions() = default;

    // The archive to save; the folder and the name are proposed. Nothing when none is to be saved.
    virtual std::optional<std::string> Archive(const std::string& folder, const std::string& name) = 0;

    // What becomes of comments that would be lost with the archive that is replaced. Only those of this
    // logbook can be kept. `changedByOthers`: the archive is the one that the logbook came from or was saved
    // as last, and it is no longer as it was then.
    enum class OldComments : std::uint8_t { Replace, Keep, Cancel };
    virtual OldComments DecideOn(const ArchivedComments& lost, bool changedByOthers) = 0;

    // Whether the archive is wanted though these texts lose characters in it (see TextsThatLose).
    virtual bool AgreesToLosses(std::string_view losses) = 0;

    // Whether the logbook file goes in as it is now, though it has changed since it was read.
    virtual bool AgreesToChangedLogbook() = 0;
};
