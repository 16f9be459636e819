// SPDX-License-Identifier: MIT
#include "eventinfo/EventClass.h"

#include "eventinfo/EventTextRecord.h"

#include <array>

namespace {

struct EventClass {
    std::string_view Name;
    std::string_view Text;
};

constexpr auto EventClasses = std::to_array<EventClass>({
    {"Ev_class_1", "Ev_class 1\r\nkeine Reaktion"},
    {"Ev_class_2", "Ev_class 2\r\nWarnung\r\nAnzeige"},
    {"Ev_class_3", "Ev_class 3\r\nWarnung\r\nLogfile-Eintrag"},
    {"Ev_class_4", "Ev_class 4\r\nWarnung\r\nAnzeige - Logfile-Eintrag"},
    {"Ev_class_5", "Ev_class 5\r\nWarnung\r\nAnzeige - Logfile-Eintrag - Quittierung"},
    {"Ev_class_6", "Ev_class 6\r\nVorschub Stop\r\nAnzeige - Logfile-Eintrag - Quittierung"},
    {"Ev_class_7", "Ev_class 7\r\nProgrammabbruch\r\nAnzeige - Logfile-Eintrag - Quittierung"},
    {"Ev_class_8",
     "Ev_class 8\r\nProgrammabbruch auf stabiler Position\r\nAnzeige - Logfile-Eintrag - Quittierung"},
    {"Ev_class_9", "Ev_class 9\r\nNotaus\r\nAnzeige - Logfile-Eintrag\r\nQuittierung"},
    {"Ev_class_10", "Ev_class 10\r\nSteuerungsreset = SysEvClass\r\nAnzeige - Logfile-Eintrag - Quittierung"},
    {"Ev_class_11", "Ev_class 11\r\nNc-Stop\r\nAnzeige - Logfile-Eintrag"},
    {"Ev_class_12", "Ev_class 12\r\nNc-Stop\r\nAnzeige - Logfile-Eintrag - Quittierung"},
    {"Ev_class_13", "Ev_class 13\r\nProgrammabbruch\r\nAnzeige - Logfile-Eintrag"},
    {"Ev_class_14", "Ev_class 14\r\nSteuerungsreset (ohne Defaulttextausgabe)\r\nAnzeige - Logfile-Eintrag - "
                    "Quittierung"},
});

} // namespace

std::string EventClassText(std::string_view className) {
    for (const EventClass& known : EventClasses)
        if (known.Name == className)
            return std::string(known.Text);
    return std::string(className).append(EventTextBreak).append("???");
}
