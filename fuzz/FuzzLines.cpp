// SPDX-License-Identifier: MIT
// A file read in tiny blocks gives the same as the file read at once. The first byte is the block size, the
// rest of the first line the operations, which are repeated in this order; below it stands the file.
#include "FuzzSupport.h"
#include "logbook/clsFile.h"

#include <vector>

namespace {

constexpr int MostSteps = 200;

struct KeptLine {
    std::string_view Line;
    std::string Copy;
};

class Reader {
  public:
    Reader(const std::string& path, std::size_t blockSize) : file_(blockSize) {
        Check(file_.OpenFile(path, clsFile::IfEmpty::StayOpen));
    }

    // What the operation gave, and where the file stands then.
    std::string Step(char operation) {
        std::string_view line;
        bool read = true;
        switch (operation) {
        case 'p':
            read = file_.ReadPassingLine(line);
            break;
        case 'n':
            line = file_.NextLineStart();
            break;
        case 's':
            file_.SavePosition();
            break;
        case 'b':
            file_.RestoreSavedPosition();
            break;
        case 'w':
            file_.RewindFile();
            break;
        case 'k':
            CheckKept();
            file_.ReleaseLines();
            kept_.clear();
            break;
        default:
            read = file_.ReadLine(line);
            kept_.push_back({line, std::string(line)});
        }
        Check(line.find_first_of("\r\n") == std::string_view::npos);
        Check(read || (line.empty() && file_.EndOfFile()));
        std::string result(line);
        for (const std::int64_t number :
             {std::int64_t{read}, file_.FileLeft(), file_.CurrentPosition(), file_.LinesRead(),
              std::int64_t{file_.BufferSize()}, std::int64_t{file_.BufferLeft()}})
            result.append(" ").append(std::to_string(number));
        return result;
    }

    // A line stays as it was until it is released.
    void CheckKept() const {
        for (const KeptLine& kept : kept_)
            Check(kept.Line == kept.Copy);
    }

  private:
    clsFile file_;
    std::vector<KeptLine> kept_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest = TextOf(data, size);
    std::string_view operations = TakeLine(rest);
    if (operations.size() < 2)
        return 0;
    const std::size_t blockSize = static_cast<unsigned char>(operations.front()) & 0x3FU;
    operations.remove_prefix(1);
    const MemoryFile file(rest);
    Reader tiny(file.Path(), blockSize);
    Reader whole(file.Path(), rest.size() + 1);
    for (std::size_t step = 0; step < MostSteps; ++step) {
        const char operation = operations[step % operations.size()];
        Check(tiny.Step(operation) == whole.Step(operation));
    }
    tiny.CheckKept();
    whole.CheckKept();
    return 0;
}
