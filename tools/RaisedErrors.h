// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

class Dice;
struct MachineEvent;

// The numbers of the errors that came last and were not cleared.
class RaisedErrors {
  public:
    // Remembers the number of the event, if it is an error and its text begins with one: "P2410".
    void Add(const MachineEvent& event);

    bool IsEmpty() const { return count == 0; }
    // One of them, which is then forgotten. There must be one.
    std::string_view Take(Dice& dice);

  private:
    static constexpr std::size_t Most = 6;

    void Remove(std::string_view number);

    std::array<std::string_view, Most> numbers{};
    std::size_t count = 0;
};
