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

// Room for a key stroke as it is shown, put together from words of a text of at most 64 characters and what
// stands between them.
using DataRoom = std::array<char, 96>;

// The entry that a line parser fills. Its texts still have one byte a character, as the logbook file has,
// because every column rule counts characters; they are converted when the entry table stores the entry.
//
// The texts point into the lines that they were cut from, which stay valid until the file's lines are
// released, or into texts that live longer, or into what SetData, ShortDataRoom, TimeRoom and Keep made the
// entry's own.
class ParsedEntry {
  public:
    std::int16_t EventType = EventTypes::None;
    std::string_view Sender;
    std::string_view Name;
    std::string_view Data;
    std::string_view Time;
    std::int16_t Image = Images::Info;

    // Where the number of the entry's kind (type, icon, sender and name) is remembered, once the entry table
    // has found it: with the header that decides the kind. nullptr when there is none, or when something else
    // decides, too; see SetTypeByData.
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

    // A type and an icon that the entry's data decides: entries with the same header may then be of other
    // kinds, so that none is remembered with it.
    void SetTypeByData(std::int16_t eventType, std::int16_t image) {
        EventType = eventType;
        Image = image;
        KindMemo = nullptr;
    }

    // Appends to a data text that is the entry's own; the first time, what Data is becomes that.
    void AppendToData(std::string_view text) {
        OwnData();
        OwnedData += text;
        Data = OwnedData;
    }

    // Makes the joined parts the data, as the entry's own; the parts may point into what the data was.
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

    // Room for a short data text that is the entry's own.
    DataRoom& ShortDataRoom() { return OwnedShortData; }

    // Room for a time that is the entry's own.
    StampRoom& TimeRoom() { return OwnedTime; }

    // Makes all texts the entry's own, so that the lines may be released.
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
