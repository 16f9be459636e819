// SPDX-License-Identifier: MIT
// The tool ended by a signal in the middle of its work: nothing of it stays.
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"
#include "support/ZipWriter.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <thread>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

bool Until(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return condition();
}

class Signals : public testing::Test {
  protected:
    Signals() {
        std::filesystem::create_directory(Temp);
        std::filesystem::create_directory(Target);
        EXPECT_EQ(::pipe2(output_, O_CLOEXEC), 0);
    }
    ~Signals() override {
        if (process_ > 0) {
            ::kill(process_, SIGKILL);
            ::waitpid(process_, nullptr, 0);
        }
        for (const int end : output_)
            ::close(end);
    }

    // A zip archive with a logbook of so many entries, which nothing can pack.
    std::string Archive(int entries) {
        std::string log;
        std::string text(40, ' ');
        unsigned random = 1;
        for (int i = 0; i < entries; ++i) {
            for (char& c : text) {
                random = random * 1664525 + 1013904223;
                c = static_cast<char>(' ' + 1 + random / 65536 % 90);
            }
            log += Header("BERR:    " + text.substr(0, 38)) + "\r\n";
        }
        LogSize = log.size();
        WriteZip(Folder / "a.zip", {{"a.log", log}});
        return Folder / "a.zip";
    }

    void Start(std::vector<std::string> arguments, bool ignoresInterrupts = false) {
        arguments.insert(arguments.begin(), QORVIX_PROGRAM_FOLDER "/qorvix-cli");
        std::vector<char*> words;
        for (std::string& argument : arguments)
            words.push_back(argument.data());
        words.push_back(nullptr);
        process_ = ::fork();
        if (process_ != 0)
            return;
        ::setenv("TMPDIR", Temp.c_str(), 1);
        ::setenv("XDG_CONFIG_HOME", (Folder / "config").c_str(), 1);
        ::setenv("XDG_DATA_HOME", (Folder / "data").c_str(), 1);
        ::setenv("XDG_STATE_HOME", (Folder / "state").c_str(), 1);
        ::dup2(output_[1], STDOUT_FILENO);
        ::dup2(::open((Folder / "errors").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
        if (ignoresInterrupts)
            std::signal(SIGINT, SIG_IGN);
        ::execv(words.front(), words.data());
        ::_exit(127);
    }

    // The status that it ends with.
    int End() {
        int status = 0;
        EXPECT_TRUE(Until([&] { return ::waitpid(process_, &status, WNOHANG) != 0; }));
        process_ = 0;
        return status;
    }

    void ExpectEndBy(int signal) { ExpectEndByOneOf(signal, signal); }

    // Of two that come at once, the system chooses the first.
    void ExpectEndByOneOf(int signal, int other) {
        const int status = End();
        ASSERT_TRUE(WIFSIGNALED(status)) << status;
        EXPECT_TRUE(WTERMSIG(status) == signal || WTERMSIG(status) == other) << WTERMSIG(status);
        EXPECT_TRUE(std::filesystem::is_empty(Temp));
        EXPECT_EQ(FileContent(Folder / "errors"), "");
    }

    // True once so much waits in the pipe that the tool waits for a reader.
    bool IsPipeFull() const {
        int bytes = 0;
        return ::ioctl(output_[0], FIONREAD, &bytes) == 0 && bytes > 60000;
    }

    TemporaryFolder Folder;
    std::string Temp = Folder / "temp";
    std::string Target = Folder / "target";
    std::uintmax_t LogSize = 0; // unpacked
    pid_t process_ = 0;
    int output_[2] = {-1, -1};
};

} // namespace

TEST_F(Signals, EndAToolThatWaitsForItsReader) {
    const std::string archive = Archive(3000);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        Start({"export", archive, "--format", signal == SIGINT ? "csv" : "jsonl"});
        ASSERT_TRUE(Until([&] { return IsPipeFull(); }));
        ::kill(process_, signal);
        ExpectEndBy(signal);
        std::string read(1 << 20, ' ');
        EXPECT_GT(::read(output_[0], read.data(), read.size()), 0);
    }
}

TEST_F(Signals, NothingIsLeftUnpackedWhereItIsKilledWhilePrinting) {
    Start({"export", Archive(3000)});
    ASSERT_TRUE(Until([&] { return IsPipeFull(); }));
    EXPECT_TRUE(std::filesystem::is_empty(Temp));
    ::kill(process_, SIGKILL);
    EXPECT_TRUE(WIFSIGNALED(End()));
    EXPECT_TRUE(std::filesystem::is_empty(Temp));
}

TEST_F(Signals, APipeWithoutAReaderEndsIt) {
    Start({"export", Archive(3000)});
    ASSERT_TRUE(Until([&] { return IsPipeFull(); }));
    ::close(output_[0]);
    output_[0] = -1;
    ExpectEndBy(SIGPIPE);
}

// As a second Ctrl+C does, or a program that signals the tool and then its whole group.
TEST_F(Signals, SecondSignalDoesNotDisturbTheEnd) {
    const std::string archive = Archive(120000);
    for (const int second : {SIGTERM, SIGINT, SIGHUP})
        for (const char* const command : {"export", "pack"}) {
            const std::string output = Target + "/a.qorvix";
            Start(command == std::string("pack")
                      ? std::vector<std::string>{command, archive, output}
                      : std::vector<std::string>{command, archive, "--output", output});
            ASSERT_TRUE(Until([&] { return !std::filesystem::is_empty(Target); }));
            ::kill(process_, SIGTERM);
            ::kill(process_, second);
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            ::kill(process_, second);
            ExpectEndByOneOf(SIGTERM, second);
            EXPECT_TRUE(std::filesystem::is_empty(Target)) << command << ' ' << second;
        }
}

TEST_F(Signals, AnOutputFileIsNeverHalf) {
    const std::string archive = Archive(120000);
    const std::string output = Target + "/list.jsonl";
    Start({"export", archive, "--output", output});
    ASSERT_TRUE(Until([&] { return !std::filesystem::is_empty(Target); }));
    ::kill(process_, SIGTERM);
    ExpectEndBy(SIGTERM);
    EXPECT_TRUE(std::filesystem::is_empty(Target));
}

TEST_F(Signals, AnArchiveIsNeverHalf) {
    const std::string archive = Archive(120000);
    const std::string output = Target + "/a.qorvix";
    Start({"pack", archive, output});
    ASSERT_TRUE(Until([&] { return !std::filesystem::is_empty(Target); }));
    ::kill(process_, SIGINT);
    ExpectEndBy(SIGINT);
    EXPECT_TRUE(std::filesystem::is_empty(Target));
}

TEST_F(Signals, AStitchedLogbookIsNeverHalf) {
    std::string log;
    for (int i = 0; i < 1'000'000; ++i)
        log += Header("BERR:    " + std::to_string(i)) + "\r\n";
    const std::string older = Folder.Write("older.log", log);
    const std::string newer =
        Folder.Write("newer.log", log.substr(log.size() / 2) + Header("BERR:    new") + "\r\n");
    for (const char* const name : {"/a.log", "/a.qorvix"}) {
        Start({"stitch", older, newer, "--output", Target + name});
        ASSERT_TRUE(Until([&] { return !std::filesystem::is_empty(Target); }));
        ::kill(process_, SIGTERM);
        ExpectEndBy(SIGTERM);
        EXPECT_TRUE(std::filesystem::is_empty(Target)) << name;
    }
}

TEST_F(Signals, UnpackingAndReadingEnd) {
    const std::string archive = Archive(120000);
    const auto unpacked = [&](std::uintmax_t least) {
        std::error_code gone;
        for (const auto& item : std::filesystem::recursive_directory_iterator(Temp, gone))
            if (item.is_regular_file(gone) && item.file_size(gone) >= least &&
                item.path().extension() == ".log")
                return true;
        return false;
    };
    for (const std::uintmax_t bytes : {std::uintmax_t{1}, LogSize}) {
        Start({"export", archive});
        ASSERT_TRUE(Until([&] { return unpacked(bytes); }));
        ::kill(process_, SIGINT);
        ExpectEndBy(SIGINT);
        int waiting = -1;
        EXPECT_EQ(::ioctl(output_[0], FIONREAD, &waiting), 0);
        EXPECT_EQ(waiting, 0) << "ended before a row was printed";
    }
}

TEST_F(Signals, OneThatIsIgnoredStaysIgnored) {
    Start({"export", Archive(3000)}, true);
    ASSERT_TRUE(Until([&] { return IsPipeFull(); }));
    ::kill(process_, SIGINT);
    // Read to the end: this process's own writing end goes first.
    ::close(output_[1]);
    output_[1] = -1;
    std::string read(1 << 16, ' ');
    while (::read(output_[0], read.data(), read.size()) > 0) {
    }
    const int status = End();
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}
