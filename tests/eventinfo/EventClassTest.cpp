// SPDX-License-Identifier: MIT
#include "eventinfo/EventClass.h"

#include <gtest/gtest.h>

TEST(EventClass, EachHasItsText) {
    EXPECT_EQ(EventClassText("Ev_class_1"), "Ev_class 1\r\nkeine Reaktion");
    EXPECT_EQ(EventClassText("Ev_class_2"), "Ev_class 2\r\nWarnung\r\nAnzeige");
    EXPECT_EQ(EventClassText("Ev_class_3"), "Ev_class 3\r\nWarnung\r\nLogfile-Eintrag");
    EXPECT_EQ(EventClassText("Ev_class_4"), "Ev_class 4\r\nWarnung\r\nAnzeige - Logfile-Eintrag");
    EXPECT_EQ(EventClassText("Ev_class_5"),
              "Ev_class 5\r\nWarnung\r\nAnzeige - Logfile-Eintrag - Quittierung");
    EXPECT_EQ(EventClassText("Ev_class_6"),
              "Ev_class 6\r\nVorschub Stop\r\nAnzeige - Logfile-Eintrag - Quittierung");
    EXPECT_EQ(EventClassText("Ev_class_7"),
              "Ev_class 7\r\nProgrammabbruch\r\nAnzeige - Logfile-Eintrag - Quittierung");
    EXPECT_EQ(
        EventClassText("Ev_class_8"),
        "Ev_class 8\r\nProgrammabbruch auf stabiler Position\r\nAnzeige - Logfile-Eintrag - Quittierung");
    EXPECT_EQ(EventClassText("Ev_class_9"),
              "Ev_class 9\r\nNotaus\r\nAnzeige - Logfile-Eintrag\r\nQuittierung");
    EXPECT_EQ(EventClassText("Ev_class_10"),
              "Ev_class 10\r\nSteuerungsreset = SysEvClass\r\nAnzeige - Logfile-Eintrag - Quittierung");
    EXPECT_EQ(EventClassText("Ev_class_11"), "Ev_class 11\r\nNc-Stop\r\nAnzeige - Logfile-Eintrag");
    EXPECT_EQ(EventClassText("Ev_class_12"),
              "Ev_class 12\r\nNc-Stop\r\nAnzeige - Logfile-Eintrag - Quittierung");
    EXPECT_EQ(EventClassText("Ev_class_13"), "Ev_class 13\r\nProgrammabbruch\r\nAnzeige - Logfile-Eintrag");
    EXPECT_EQ(EventClassText("Ev_class_14"), "Ev_class 14\r\nSteuerungsreset (ohne Defaulttextausgabe)\r\n"
                                             "Anzeige - Logfile-Eintrag - Quittierung");
}

TEST(EventClass, UnknownOnesAreNamed) {
    EXPECT_EQ(EventClassText("Ev_class_15"), "Ev_class_15\r\n???");
    EXPECT_EQ(EventClassText("EV_CLASS_1"), "EV_CLASS_1\r\n???");
    EXPECT_EQ(EventClassText("Ev_class 1"), "Ev_class 1\r\n???");
    EXPECT_EQ(EventClassText("Ev_class_1 "), "Ev_class_1 \r\n???");
    EXPECT_EQ(EventClassText(""), "\r\n???");
}
