// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QTest>

#include <string>

// Several classes of Qt tests make one program, so that the headers of Qt are compiled once for all of them.
// Each class has a process of its own: the name of the class is the program's first argument, what follows
// belongs to Qt Test.

// Where the person's own files of the programs are, in all that follows.
void UseDataFolder(const std::string& folder);
inline constexpr const char* NoFolder = "/nonexistent";

// Runs the test class named `name`; returns what main() returns.
using WindowTestRun = int (*)(int argc, char** argv);

// Adds a class of tests to this program's. Use QORVIX_WINDOW_TEST.
bool AddWindowTest(const char* name, WindowTestRun run);

// An application, and in it all tests of one class.
template <class Test>
int RunWindowTest(int argc, char** argv) {
    QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

// QORVIX_WINDOW_TEST(class) in the source of a test class adds it to the program.
#define QORVIX_WINDOW_TEST(Test) QORVIX_WINDOW_TEST_RUN(Test, RunWindowTest<Test>)
// The same with a function that prepares what must be there before the application is.
#define QORVIX_WINDOW_TEST_RUN(Test, run)                                                                    \
    [[maybe_unused]] static const bool Test##IsAdded = AddWindowTest(#Test, run);
