// SPDX-License-Identifier: MIT
#include "eventinfo/Mod_Facility.h"

#include "eventinfo/FacilityRows.h"

static_assert(FacilityRows.size() == FacilityRowsAtMost);

FacilityTable InitFacilityTable() {
    FacilityTable table;
    for (std::size_t slot = 0; slot < FacilityRows.size(); ++slot) {
        const FacilityRow& row = FacilityRows[slot];
        table[slot] = {row.Number, std::string(row.FilePrefix), std::string(row.ModuleName)};
    }
    return table;
}

std::size_t FindFacility(const FacilityTable& table, std::int64_t number) {
    for (std::size_t slot = 0; slot < table.size(); ++slot)
        if (table[slot].Number == number)
            return slot;
    return 0;
}
