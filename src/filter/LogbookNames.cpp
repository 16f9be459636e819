// SPDX-License-Identifier: MIT
#include "filter/LogbookNames.h"

#include "base/AsciiCase.h"
#include "logbook/EntryKinds.h"

#include <cstdint>
#include <set>
#include <string_view>

namespace {

// Names that differ only in case are two names, because the filter compares exactly.
struct NameOrder {
    bool operator()(std::string_view a, std::string_view b) const {
        const LessWithoutCase less;
        return less(a, b) || (!less(b, a) && a < b);
    }
};

// Keeps only the first ones in the order, however many kinds a damaged logbook has.
class FirstNames {
  public:
    void Add(std::string_view name) {
        if (name.empty())
            return;
        names_.insert(name);
        if (names_.size() > LogbookNames::Most)
            names_.erase(std::prev(names_.end()));
    }

    std::vector<std::string> List() const { return {names_.begin(), names_.end()}; }

  private:
    std::set<std::string_view, NameOrder> names_;
};

} // namespace

LogbookNames NamesInLogbook(const EntryKinds& kinds) {
    FirstNames names;
    FirstNames senders;
    for (std::uint32_t number = 0; number < kinds.Count(); ++number) {
        names.Add(kinds[number].Name);
        senders.Add(kinds[number].Sender);
    }
    return {names.List(), senders.List()};
}
