// SPDX-License-Identifier: MIT
#pragma once

#include "tools/LogbookWriter.h"

#include "support/ReadText.h"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include <array>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

inline constexpr std::array AllGenerations{Generation::Classic, Generation::Separated, Generation::Operation};

// Something of everything, often.
inline Plants ManyPlants() {
    Plants plants;
    plants.codedErrors = 30;
    plants.cleared = 20;
    plants.clockSteps = 90;
    plants.bursts = 100;
    plants.precursors = 50;
    plants.chatter = 120;
    plants.summerTime = true;
    return plants;
}

inline std::string NameOfGeneration(const testing::TestParamInfo<Generation>& info) {
    constexpr std::array Names{"Classic", "Separated", "Operation"};
    return Names[static_cast<std::size_t>(info.param)];
}

// A logbook, what the generator says of it, and what reading gives.
class WrittenLogbook {
  public:
    explicit WrittenLogbook(const LogbookOrder& order) {
        std::ostringstream out;
        std::stringstream truth;
        WriteLogbook(order, out, &truth);
        Text = std::move(out).str();
        for (std::string line; std::getline(truth, line);)
            Truth.push_back(nlohmann::json::parse(line));
        ReadText(Text, Read);
        std::istringstream lines(Text);
        for (std::string line; std::getline(lines, line, '\r'); lines.ignore(1))
            Lines.push_back(line);
    }

    // The objects of one kind.
    std::vector<nlohmann::json> TruthOf(std::string_view what) const {
        std::vector<nlohmann::json> objects;
        for (const nlohmann::json& object : Truth)
            if (object["what"] == what)
                objects.push_back(object);
        return objects;
    }

    std::string Text;
    std::vector<std::string> Lines; // the first one is line 1 of the truth
    std::vector<nlohmann::json> Truth;
    ReadResult Read;
};

// A logbook of the last week of summer time.
inline WrittenLogbook WriteOctober(Generation generation, std::uint64_t entries, std::uint64_t seed,
                                   const Plants& plants) {
    LogbookOrder order;
    order.generation = generation;
    order.entries = entries;
    order.seed = seed;
    order.firstDay = 14908; // Tuesday 26 October 2010
    order.plants = plants;
    return WrittenLogbook(order);
}

// "04.01.2010 12:45:02.123" as 2010-01-04T12:45:02.123
inline std::string Iso(std::string_view stamp) {
    return std::string(stamp.substr(6, 4)) + '-' + std::string(stamp.substr(3, 2)) + '-' +
           std::string(stamp.substr(0, 2)) + 'T' + std::string(stamp.substr(11));
}
