// SPDX-License-Identifier: MIT
#include "settings/JsonSettings.h"

#include "base/AsciiCase.h"
#include "base/AtomicFile.h"
#include "base/FileLock.h"
#include "base/FileProblem.h"
#include "base/LastError.h"
#include "base/Paths.h"
#include "base/UserFolders.h"
#include "settings/Registry.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <limits>
#include <new>
#include <system_error>
#include <vector>

namespace {

// A link that leads nowhere also occupies its name.
bool IsTaken(const std::string& file) {
    std::error_code error;
    return std::filesystem::exists(std::filesystem::symlink_status(ToPath(file), error));
}

using Json = JsonSettings::Json;

// In bytes. Five million entries removed from the list one by one make a sixth of it.
constexpr std::size_t LargestFile = 256U << 20U;

// Empties a value, the innermost values first. The destructor of a filled one needs memory for its values,
// and ends the program where there is none. A text that is parsed here is not nested deep.
void Empty(Json& value) noexcept {
    if (!value.is_structured())
        return;
    for (Json& inner : value)
        Empty(inner);
    value.clear();
}

// All settings; goes without memory.
struct Tree {
    Tree() = default;
    ~Tree() { Empty(Root); }
    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;

    Json Root;
};

// Puts a text's values into a tree, which so owns all of them whenever memory runs out.
class TreeReader : public nlohmann::json_sax<Json> {
  public:
    explicit TreeReader(Json& root) : root_(root) {}

    bool null() override { return Put(Json()); }
    bool boolean(bool value) override { return Put(value); }
    bool number_integer(std::int64_t value) override { return Put(value); }
    bool number_unsigned(std::uint64_t value) override { return Put(value); }
    bool number_float(double value, const std::string&) override { return Put(value); }
    bool string(std::string& value) override { return Put(std::move(value)); }
    bool binary(Json::binary_t&) override { return false; }
    bool start_object(std::size_t) override { return Open(Json::object()); }
    bool start_array(std::size_t) override { return Open(Json::array()); }
    bool end_object() override { return Close(); }
    bool end_array() override { return Close(); }
    bool key(std::string& name) override {
        member_ = &(*open_.back())[name];
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const Json::exception&) override { return false; }

  private:
    Json& NextPlace() {
        if (open_.empty())
            return root_;
        return open_.back()->is_array() ? open_.back()->emplace_back() : *member_;
    }
    bool Put(Json value) {
        last_ = &NextPlace();
        Empty(*last_); // a member that comes twice
        *last_ = std::move(value);
        return true;
    }
    bool Open(Json value) {
        Put(std::move(value));
        open_.push_back(last_);
        return true;
    }
    bool Close() {
        open_.pop_back();
        return true;
    }

    Json& root_;
    std::vector<Json*> open_; // from the root to what the next value belongs to
    Json* member_ = nullptr;
    Json* last_ = nullptr;
};

// Takes the first part off a key path.
std::string_view TakePart(std::string_view& path) {
    const std::size_t end = std::min(path.find('\\'), path.size());
    const std::string_view part = path.substr(0, end);
    path.remove_prefix(std::min(end + 1, path.size()));
    return part;
}

// Cuts a key path to the part below the application key; false for any other path.
bool TakeApplicationKey(std::string_view& path) {
    for (std::string_view application = ApplicationKey; !application.empty();)
        if (!IsSameWithoutCase(TakePart(path), TakePart(application)))
            return false;
    return true;
}

// The key of a path, nullptr where there is none; one that can be changed where the root can.
template <typename AnyJson>
AnyJson* FindKey(AnyJson& root, std::string_view path) {
    AnyJson* key = &root;
    while (!path.empty()) {
        const auto member = key->find(TakePart(path));
        if (member == key->end() || !member->is_object())
            return nullptr;
        key = &*member;
    }
    return key;
}

// The key of a path; makes missing keys. Replaces a value in the place of a key: only a person editing the
// file can have put it there, and nothing could be stored below it.
Json& MakeKey(Json& root, std::string_view path) {
    Json* key = &root;
    while (!path.empty()) {
        key = &(*key)[std::string(TakePart(path))];
        if (!key->is_object()) {
            Empty(*key);
            *key = Json::object();
        }
    }
    return *key;
}

void DeleteKey(Json& root, std::string_view path) {
    const std::size_t last = path.rfind('\\');
    const std::string_view parentPath =
        last == std::string_view::npos ? std::string_view{} : path.substr(0, last);
    const std::string_view name = last == std::string_view::npos ? path : path.substr(last + 1);
    Json* const parent = FindKey(root, parentPath);
    if (parent == nullptr)
        return;
    const auto member = parent->find(name);
    if (member == parent->end())
        return;
    Empty(*member);
    parent->erase(member);
}

bool Apply(const SettingsChange& change, Json& root) {
    std::string_view path = change.KeyPath;
    if (!TakeApplicationKey(path))
        return false;
    if (change.What == SettingsChange::Kind::DeleteKey) {
        DeleteKey(root, path);
        return true;
    }
    Json& key = MakeKey(root, path);
    if (change.What == SettingsChange::Kind::CreateKey)
        return true;
    Json& value = key[change.Name];
    if (value.is_object())
        return false;
    Empty(value);
    std::visit([&](const auto& newValue) { value = newValue; }, change.Value);
    return true;
}

// True when values are nested deeper than in any settings. The answer for a text that is not JSON has no
// meaning.
bool IsNestedTooDeep(std::string_view text) {
    constexpr int MostDepth = 32;
    int depth = 0;
    bool inText = false;
    for (std::size_t i = 0; i < text.size() && depth <= MostDepth; ++i) {
        const char c = text[i];
        if (inText && c == '\\')
            ++i;
        else if (c == '"')
            inText = !inText;
        else if (!inText && (c == '[' || c == '{'))
            ++depth;
        else if (!inText && (c == ']' || c == '}'))
            --depth;
    }
    return depth > MostDepth;
}

// Parses the whole file. Nesting deeper than in any settings counts as damage, so that no file can exhaust
// the stack.
bool Parse(const std::string& text, Json& root) {
    if (IsNestedTooDeep(text))
        return false;
    TreeReader reader(root);
    return Json::sax_parse(text, &reader) && root.is_object();
}

} // namespace

std::string JsonSettings::UserFile() { return PathText(ConfigurationFolder() / "Qorvix.json"); }

JsonSettings::~JsonSettings() { Empty(known_); }

JsonSettings::Content JsonSettings::Load(Json& root) const {
    Empty(root);
    root = Json::object();
    const std::error_code error = CheckRegularFile(ToPath(file_));
    if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory)
        return Content::Missing;
    std::error_code ignored;
    std::ifstream stream;
    errno = 0;
    if (!error && std::filesystem::file_size(ToPath(file_), ignored) <= LargestFile)
        stream.open(ToPath(file_), std::ios::binary);
    if (!stream.is_open()) {
        // The caller's defaults would take the place of the person's settings.
        if (LastError() == std::errc::not_enough_memory)
            throw std::bad_alloc();
        return Content::Unreadable;
    }
    std::string text;
    for (std::array<char, 65536> part; stream && text.size() <= LargestFile;
         text.append(part.data(), static_cast<std::size_t>(stream.gcount())))
        stream.read(part.data(), static_cast<std::streamsize>(part.size()));
    if (stream.bad() || text.size() > LargestFile)
        return Content::Unreadable;
    if (text.empty())
        return Content::Missing;
    if (Parse(text, root))
        return Content::Whole;
    Empty(root);
    root = Json::object();
    return Content::Damaged;
}

const JsonSettings::Json& JsonSettings::Current() const {
    // The state is taken first, so that a file replaced in between is read again the next time.
    const FileState state = StateOf(file_);
    if (state.Size >= 0 && state == knownState_)
        return known_;
    // What cannot be read now may be readable the next time.
    knownState_ = Load(known_) == Content::Unreadable ? FileState() : state;
    return known_;
}

std::optional<SettingValue> JsonSettings::Read(std::string_view keyPath, std::string_view name) const {
    if (!TakeApplicationKey(keyPath))
        return std::nullopt;
    const Json* const key = FindKey(Current(), keyPath);
    if (key == nullptr)
        return std::nullopt;
    const auto member = key->find(name);
    if (member == key->end())
        return std::nullopt;
    if (member->is_string())
        return member->get<std::string>();
    using Limits = std::numeric_limits<std::int32_t>;
    if (member->is_number_unsigned() &&
        member->get<std::uint64_t>() <= static_cast<std::uint64_t>(Limits::max()))
        return static_cast<std::int32_t>(member->get<std::uint64_t>());
    if (!member->is_number_unsigned() && member->is_number_integer() &&
        member->get<std::int64_t>() >= Limits::min())
        return static_cast<std::int32_t>(member->get<std::int64_t>());
    return std::nullopt;
}

bool JsonSettings::Change(const std::vector<SettingsChange>& changes) {
    std::error_code error;
    std::filesystem::create_directories(ToPath(file_).parent_path(), error);
    const FileLock lock(file_ + ".lock");
    if (!lock.IsHeld())
        return false;
    Tree tree;
    Json& root = tree.Root;
    const Content before = Load(root);
    if (before == Content::Unreadable)
        return false;
    // A change that cannot be made does not prevent the others.
    bool all = true;
    for (const SettingsChange& change : changes)
        all = Apply(change, root) && all;
    return Store(root, before) && all;
}

bool JsonSettings::KeepDamaged() const {
    constexpr int MostKept = 1000;
    std::error_code error;
    std::string kept = file_ + ".damaged";
    for (int number = 1; number < MostKept && IsTaken(kept); ++number)
        kept = file_ + ".damaged." + std::to_string(number);
    return std::filesystem::copy_file(ToPath(file_), ToPath(kept), error);
}

bool JsonSettings::Store(const Json& root, Content before) {
    const std::string text = root.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
    if (text.size() > LargestFile)
        return false;
    AtomicFile file(file_);
    file.Stream() << text;
    if (before == Content::Damaged && !KeepDamaged())
        return false;
    return !file.Commit();
}
