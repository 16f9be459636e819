// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/EventTextRecord.h"

#include <cstdint>
#include <optional>
#include <string>

// The texts of a facility's events, in a file "<prefix>_EN.XMT" or "<prefix>_DE.XMT". The file is read line
// by line, as the control's own tools write it:
//
//     <string id="SERVO_LAG" value="18" class="Ev_class_7">
//     <text>Servo lag too large</text>
//     <text1>The axis is blocked.&#10;The axis is too slow.</text1>
//     <text2>Free the axis.</text2>
//     </string>

// The text of the event, searched from the file's beginning; nothing when the number is not in the file or
// the file cannot be read. A text that is missing, has no end tag, or has its end tag before its start tag is
// empty. The lines between the first and the last of an entry are joined with nothing between them. The first
// line itself holds no text: an entry all in one line continues in the next.
std::optional<EventTextRecord> ReadXmlErrorText(const std::string& fileName, std::int64_t number);

// Repairs umlauts whose UTF-8 bytes were read as Windows-1252 (ä, ö, ü and ß, no capitals), and resolves
// "&gt;", "&quot;" and "&apos;". Both quotes become apostrophes, and "&lt;" and "&amp;" stay. This is
// deliberate: the texts are written for it.
void FixUpXmlText(std::string& text);
