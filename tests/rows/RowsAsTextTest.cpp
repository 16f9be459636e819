// SPDX-License-Identifier: MIT
#include "rows/RowsAsText.h"

#include "support/ReadText.h"

#include <gtest/gtest.h>

namespace {

TEST(RowsAsTextTest, HasAHeaderAndALineARow) {
    ReadResult result;
    ReadText(Lines({Header("BERR:    a"), Header("INFO:    GEO AXIS"), "K\xFChlung"}), result);
    result.Book.Entries.SetComment(1, "seen\ttwice\r\n");
    const LogbookRows rows{{1, 0}, {0, 1}};
    EXPECT_EQ(RowsAsText(result.Book.Entries, rows, {{0, 1}}, {}),
              "Event type\tData\tSender\tName\tTime\tIndex\tComment\n"
              "Info\tKühlung\tGEO\tAXIS\t04.01.2010 12:34:56.789\t1\tseen twice  \n"
              "Fatal\ta\t\t\t04.01.2010 12:34:56.789\t0\t\n");
    EXPECT_EQ(RowsAsText(result.Book.Entries, rows, {}, {Language::German}),
              "Ereignistyp\tInhalt\tQuelle\tName\tZeit\tIndex\tKommentar\n");
}

} // namespace
