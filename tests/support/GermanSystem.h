// SPDX-License-Identifier: MIT
#pragma once

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <libintl.h>

// While one lives, the C library has a German text for "No such file or directory", as on a desktop installed
// in German. It comes from this class's own message catalogue, so that no German locale need be installed.
class GermanSystem {
  public:
    static constexpr std::string_view NoSuchFile = "Datei oder Verzeichnis nicht gefunden";

    GermanSystem() : catalogues_(bindtextdomain("libc", nullptr)) {
        std::filesystem::create_directories(folder_ / "de/LC_MESSAGES");
        folder_.Write("de/LC_MESSAGES/libc.mo", Catalogue());
        EXPECT_EQ(setenv("LANGUAGE", "de", 1), 0);
        EXPECT_NE(bindtextdomain("libc", folder_.Path().c_str()), nullptr);
        EXPECT_NE(std::setlocale(LC_MESSAGES, "C.UTF-8"), nullptr);
    }
    ~GermanSystem() {
        std::setlocale(LC_MESSAGES, "C");
        bindtextdomain("libc", catalogues_.c_str());
        unsetenv("LANGUAGE");
    }
    GermanSystem(const GermanSystem&) = delete;
    GermanSystem& operator=(const GermanSystem&) = delete;

  private:
    // A message catalogue: number, places and lengths of the originals and their translations, then all of
    // them. The first original is "", whose translation names the encoding.
    static std::string Catalogue() {
        static constexpr std::array<std::string_view, 4> Strings{
            "", "No such file or directory", "Content-Type: text/plain; charset=UTF-8\n", NoSuchFile};
        constexpr std::uint32_t Header = 28;
        std::vector<std::uint32_t> numbers{0x950412DE, 0, 2, Header, Header + 16, 0, 0};
        std::string texts;
        for (const std::string_view string : Strings) {
            numbers.push_back(static_cast<std::uint32_t>(string.size()));
            numbers.push_back(Header + 32 + static_cast<std::uint32_t>(texts.size()));
            texts.append(string).push_back('\0');
        }
        return std::string(reinterpret_cast<const char*>(numbers.data()), numbers.size() * 4) + texts;
    }

    TemporaryFolder folder_;
    std::string catalogues_;
};
