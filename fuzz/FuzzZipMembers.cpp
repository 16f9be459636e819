// SPDX-License-Identifier: MIT
// An archive of members of any names and contents, whole or with a damaged byte. Below the first line stand
// the members, each a name in a line and a content, with a line "==" between them; those behind a member
// called ">" make an archive within, "sysroot.zip". The first line: the answer to the question about the
// filters, then, where there are three more bytes, the place of the damage and what is done to the byte
// there.
#include "FuzzArchive.h"

#include <zip.h>

#include <algorithm>
#include <vector>

namespace {

struct Member {
    std::string Name;
    std::string Content;
};
using Members = std::vector<Member>;

// The bytes of an archive; members whose name cannot be or is there already are left out.
std::string Zipped(const ScratchFolder& folder, const Members& members) {
    const std::string path = folder.File("built.zip");
    zip_t* const archive = zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    Check(archive != nullptr);
    for (const Member& member : members) {
        zip_source_t* const source =
            zip_source_buffer(archive, member.Content.data(), member.Content.size(), 0);
        const zip_int64_t index = zip_file_add(archive, member.Name.c_str(), source, ZIP_FL_ENC_GUESS);
        if (index < 0)
            zip_source_free(source);
        else if (member.Content.size() % 2 == 0)
            zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), ZIP_CM_STORE, 0);
    }
    if (zip_close(archive) != 0)
        zip_discard(archive);
    // An archive without members is no file.
    const std::string bytes = std::filesystem::exists(path) ? ContentOf(path) : std::string();
    std::filesystem::remove(path);
    return bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest = TextOf(data, size);
    const std::string_view head = TakeLine(rest);
    Members outer;
    Members inner;
    bool isInner = false;
    while (!rest.empty()) {
        std::string_view member = TakePart(rest, "\n==\n");
        const std::string_view name = TakeLine(member);
        if (name == ">")
            isInner = true;
        else
            (isInner ? inner : outer).push_back({std::string(name), std::string(member)});
    }
    const ScratchFolder folder;
    if (isInner)
        outer.push_back({"SysRoot.zip", Zipped(folder, inner)});
    std::string bytes = Zipped(folder, outer);
    const auto byteOfHead = [&](std::size_t place) { return static_cast<unsigned char>(head[place]); };
    if (head.size() >= 4 && !bytes.empty()) {
        const std::size_t place = (byteOfHead(1) * 256U + byteOfHead(2)) % bytes.size();
        bytes[place] = static_cast<char>(static_cast<unsigned char>(bytes[place]) ^ byteOfHead(3));
    }
    folder.Write("a.zip", bytes);

    // What is unpacked is what went in, or nothing: never a damaged text.
    OpenArchive(folder, AnswerOf(head.empty() ? 0 : byteOfHead(0)), [&](const std::string& content) {
        const auto isIt = [&](const Member& member) { return member.Content == content; };
        Check(std::any_of(outer.begin(), outer.end(), isIt) || std::any_of(inner.begin(), inner.end(), isIt));
    });
    return 0;
}
