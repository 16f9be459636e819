// SPDX-License-Identifier: MIT
#include "helpbook/HelpContents.h"

#include "base/AsciiCase.h"
#include "helpbook/HtmlTags.h"

#include <algorithm>

namespace {

constexpr std::size_t MostLevels = 32;

// Pages are named from the root of the file, whose "/" is often left out; some writers use "\".
std::string PagePath(std::string page) {
    std::replace(page.begin(), page.end(), '\\', '/');
    return page.empty() || page.starts_with('/') ? page : '/' + page;
}

// Reads one level and stops behind its end tag.
std::vector<HelpTopic> ReadLevel(HtmlTags& tags, std::size_t level) {
    std::vector<HelpTopic> topics;
    HelpTopic topic;
    for (HtmlPiece piece; tags.Next(piece);) {
        if (piece.Tag == "ul" && level < MostLevels) {
            std::vector<HelpTopic> below = ReadLevel(tags, level + 1);
            std::vector<HelpTopic>& target = topics.empty() ? topics : topics.back().Topics;
            std::move(below.begin(), below.end(), std::back_inserter(target));
        } else if (piece.Tag == "/ul" && level > 0) {
            break;
        } else if (piece.Tag == "object") {
            topic = {};
        } else if (piece.Tag == "param") {
            const std::string name = HtmlAttribute(piece.Attributes, "name");
            if (IsSameWithoutCase(name, "Name"))
                topic.Title = HtmlAttribute(piece.Attributes, "value");
            else if (IsSameWithoutCase(name, "Local"))
                topic.Page = PagePath(HtmlAttribute(piece.Attributes, "value"));
        } else if (piece.Tag == "/object" && !topic.Title.empty()) {
            topics.push_back(std::move(topic));
            topic = {};
        }
    }
    return topics;
}

} // namespace

std::vector<HelpTopic> ReadHelpContents(std::string_view html) {
    HtmlTags tags(html);
    return ReadLevel(tags, 0);
}
