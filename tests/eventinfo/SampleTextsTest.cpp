// SPDX-License-Identifier: MIT
// The sample logbooks with the sample language files.
#include "eventinfo/iZEKEventInfo.h"

#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <set>

namespace {

constexpr const char* Samples = QORVIX_SOURCE_FOLDER "/samples/";

struct SampleTexts {
    std::set<std::string> With; // data texts
    std::set<std::string> Without;
};

SampleTexts LookUp(const std::string& sample, Language language) {
    ReadResult result;
    ReadText(FileContent(Samples + sample), result);
    SampleTexts texts;
    for (EntryNumber number = 0; number < result.Book.Entries.Count(); ++number) {
        const std::string data(result.Book.Entries.Data(number));
        const ProposedComment proposed = AutoFillComment(data, language, std::string(Samples) + "language");
        EXPECT_EQ(proposed.Mistake, FacilityFileMistake());
        EXPECT_FALSE(proposed.Text.value_or("").starts_with("\r\n")) << data;
        (proposed.Text ? texts.With : texts.Without).insert(data);
    }
    return texts;
}

} // namespace

TEST(SampleTexts, EveryEventOfEventsLogHasItsText) {
    for (const Language language : {Language{Language::English}, Language{Language::German}}) {
        const SampleTexts texts = LookUp("events.log", language);
        EXPECT_EQ(texts.With.size(), 13U);
        for (const std::string& data : texts.Without)
            EXPECT_TRUE(data.find("Event: ") == std::string::npos && !data.starts_with('N') &&
                        !data.starts_with('P'))
                << data;
    }
}

TEST(SampleTexts, OtherLogbooksHaveTextsToo) {
    for (const Language language : {Language{Language::English}, Language{Language::German}}) {
        EXPECT_GE(LookUp("classic.log", language).With.size(), 8U);
        EXPECT_GE(LookUp("separated.log", language).With.size(), 5U);
    }
}

TEST(SampleTexts, UmlautsAreRight) {
    EXPECT_EQ(AutoFillComment("Event: 232-0012", {Language::German}, std::string(Samples) + "language").Text,
              "Start gesperrt: Tür offen\r\nUrsache:\r\nDie Schutztür ist offen oder nicht verriegelt.\r\n"
              "Behebung:\r\nTür schließen.\r\nReaktion:\r\nEv_class 12\r\nNc-Stop\r\n"
              "Anzeige - Logfile-Eintrag - Quittierung");
}
