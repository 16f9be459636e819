// SPDX-License-Identifier: MIT
#include "logbook/Mod_FileHandling.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"
#include "tools/LogbookWriter.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::uint64_t> Places(const std::string& path, bool& read, std::size_t most = 100'000'000) {
    std::vector<std::uint64_t> places;
    RecordingProgress progress;
    progress.StopAfterRounds = 1'000'000;
    read = ReadEntryPlaces(path, progress, [&](std::int64_t number, std::uint64_t place) {
        EXPECT_EQ(number, static_cast<std::int64_t>(places.size()));
        places.push_back(place);
        return places.size() < most;
    });
    return places;
}

} // namespace

// Twenty megabytes have many blocks, with key strokes across their edges.
TEST(ReadEntryPlaces, EveryEntryOfTheListHasItsLine) {
    const TemporaryFolder folder;
    for (const Generation generation : {Generation::Classic, Generation::Separated, Generation::Operation}) {
        const std::string text =
            LogbookText({.generation = generation, .entries = 0, .bytes = 20'000'000, .seed = 3});
        ReadResult result;
        ReadText(text, result);
        bool read = false;
        const std::vector<std::uint64_t> places = Places(folder.Write("a.log", text), read);
        EXPECT_TRUE(read);
        ASSERT_EQ(places.size(), result.Book.Entries.Count());
        for (EntryNumber number = 0; number < places.size(); ++number) {
            const std::uint64_t place = places[number];
            ASSERT_TRUE(place == 0 || text[place - 1] == '\n') << number;
            std::string_view line = std::string_view(text).substr(place);
            if (line.starts_with("___"))
                line.remove_prefix(line.find('\n') + 1);
            line = line.substr(0, line.find('\r'));
            const std::string time = result.Book.Entries[number].Time;
            // The clock of the stamp stands in the entry's first line.
            const std::string clock = time.substr(time.find(':') - 2, 8);
            ASSERT_NE(line.find(clock), std::string_view::npos) << number << ": " << line << ", " << time;
        }
    }
}

TEST(ReadEntryPlaces, SeparatorLineBelongsToTheEntry) {
    const TemporaryFolder folder;
    const std::string separator = "_________Mon Jan 04 2010____________";
    const std::string event = "Reset                                       06:22:5";
    const std::string status = "Stib:    ON                                 06:22:5";
    const std::string text =
        Lines({separator, event + "1", status + "2", separator, event + "3", event + "4", status + "5"});
    bool read = false;
    const std::size_t line = event.size() + 3;
    const std::size_t heading = separator.size() + 2;
    EXPECT_EQ(Places(folder.Write("a.log", text), read),
              (std::vector<std::uint64_t>{heading + line, heading + 2 * line, 2 * heading + 4 * line}));
}

TEST(ReadEntryPlaces, EndsWhenItsTakerHasEnoughOrAnErrorComes) {
    const TemporaryFolder folder;
    const std::string log = folder.Write(
        "a.log", Lines({Header("BERR:    a"), Header("BERR:    b"), Header("BERR:    c"), "BERR: d"}));
    bool read = false;
    EXPECT_EQ(Places(log, read, 2).size(), 2U);
    EXPECT_TRUE(read);
    EXPECT_EQ(Places(log, read).size(), 3U);
    EXPECT_FALSE(read);
    EXPECT_TRUE(Places(folder / "missing.log", read).empty());
    EXPECT_FALSE(read);
}
