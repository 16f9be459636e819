// SPDX-License-Identifier: MIT
#include "comments/LogbookIdentity.h"

#include "comments/LogbookChecksum.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr EntryNumber MostThatCount = 65536;

std::string IdentityOfFirst(const EntryTable& entries, EntryNumber count) {
    const EntryNumber last = count - 1;
    return std::to_string(count) + ' ' + ChecksumsOfBeginnings(entries, std::span(&last, 1)).front() + ' ' +
           ChecksumOfEntry(entries, last);
}

} // namespace

std::string LogbookIdentity(const EntryTable& entries) {
    return entries.Count() == 0 ? "" : IdentityOfFirst(entries, std::min(entries.Count(), MostThatCount));
}

Recognised Recognise(std::string_view identity, const EntryTable& entries) {
    EntryNumber count = 0;
    const auto [end, error] = std::from_chars(identity.data(), identity.data() + identity.size(), count);
    if (error != std::errc() || end == identity.data() + identity.size() || *end != ' ' || count == 0 ||
        count > MostThatCount)
        return Recognised::Unknown;
    return count <= entries.Count() && identity == IdentityOfFirst(entries, count) ? Recognised::Same
                                                                                   : Recognised::Other;
}
