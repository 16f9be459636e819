// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/LogbookEntry.h"
#include "logbook/StampRoom.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

// Room for a key stroke as the list shows it: words of a text of at most 64 characters, with separators.
using DataRoom = std::array<char, 96>;

// The entry that a line parser fills. Its texts still have one byte a character, as in the logbook file,
// because every column rule counts characters. The entry table converts them when it stores the entry.
//
// The texts point into one of these: the lines that they were cut from, which are valid until the file's
// lines are released; texts that live longer; or the entry's own room, which SetData, ShortDataRoom, TimeRoom
// and Keep use.
class ParsedEntry {
  public:
    std::int16_t EventType = EventTypes::None;
    std::string_view Sender;
    std::string_view Name;
    std::string_view Data;
    std::string_view Time;
    std::int16_t Image = Images::Info;

    // Where the entry table remembers the number of the entry's kind (type, icon, sender and name): with the
    // header that decides the kind. nullptr when there is no such header, or when something else decides,
    // too (SetTypeByData).
    static constexpr std::uint32_t UnknownKind = 0xFFFFFFFF;
    std::uint32_t* KindMemo = nullptr;

    ParsedEntry() = default;
    ParsedEntry(const ParsedEntry&) = delete;
    ParsedEntry& operator=(const ParsedEntry&) = delete;

    // Makes the entry ready for the next line.
    void Reset() {
        EventType = EventTypes::None;
        // One by one: a chained assignment would wait for each value to come back from memory.
        Sender = {};
        Name = {};
        Data = {};
        Time = {};
        Image = Images::Info;
        KindMemo = nullptr;
    }

    // Sets a type and an icon that the entry's data decides. Entries with the same header may then be of
    // other kinds, so no kind is remembered with the header.
    void SetTypeByData(std::int16_t eventType, std::int16_t image) {
        EventType = eventType;
        Image = image;
        KindMemo = nullptr;
    }

    // Appends to the data; the first time, copies it to the entry's own room.
    void AppendToData(std::string_view text) {
        OwnData();
        OwnedData += text;
        Data = OwnedData;
    }

    // Joins the parts as the entry's own data; the parts may point into the old data.
    void SetData(std::initializer_list<std::string_view> parts) {
        std::size_t length = 0;
        for (const std::string_view part : parts)
            length += part.size();
        JoinedParts.resize(length);
        char* to = JoinedParts.data();
        for (const std::string_view part : parts)
            to += part.copy(to, part.size());
        OwnedData.swap(JoinedParts);
        Data = OwnedData;
    }

    // The entry's own room for a short data text.
    DataRoom& ShortDataRoom() { return OwnedShortData; }

    // The entry's own room for a time.
    StampRoom& TimeRoom() { return OwnedTime; }

    // Copies all texts to the entry's own room, so that the lines may be released.
    void Keep() {
        OwnData();
        JoinedParts.assign(Sender).append(Name).append(Time);
        OwnedFields.swap(JoinedParts);
        const std::string_view fields = OwnedFields;
        Time = fields.substr(Sender.size() + Name.size());
        Name = fields.substr(Sender.size(), Name.size());
        Sender = fields.substr(0, Sender.size());
    }

  private:
    void OwnData() {
        if (Data.data() == OwnedData.data())
            return;
        OwnedData.assign(Data);
        Data = OwnedData;
    }

    std::string OwnedData;
    DataRoom OwnedShortData{};
    StampRoom OwnedTime{};
    std::string OwnedFields;
    std::string JoinedParts;
};
