// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/HelpBrowser.h"
#include "dialogs/frmHelp.h"
#include "helpbook/HelpFile.h"

#include <QApplication>
#include <QTest>

#include <filesystem>
#include <vector>

// What tests of the help window share: the help that is built with the program, and a small one.
class HelpTest : public QObject {
  protected:
    // The folder of the built programs, or of those that the environment names, such as installed ones.
    static std::filesystem::path Programs() {
        const QByteArray folder = qgetenv("QORVIX_PROGRAM_FOLDER");
        return folder.isEmpty() ? QORVIX_PROGRAM_FOLDER : folder.toStdString();
    }

    static std::filesystem::path HelpOf(std::int32_t number) { return HelpFile(Programs(), {number}); }

    static HelpBook SmallBook() {
        return {
            "Small help",
            "/a.html",
            {{"A", "/a.html", {{"A below", "/sub/c.html", {}}}}, {"B", "/b.html#place", {}}},
            {{"/a.html",
              "<h1>A</h1><p><a href=\"b.html\">to B</a> <a href=\"sub/c.html\">to C</a> "
              "<a href=\"gone.html\">to nothing</a> <a href=\"https://example.com/x\">out</a></p>"},
             {"/b.html", "<h1>B</h1><p>Öffnen, and open the word twice: open</p><a name=\"place\">here</a>"},
             {"/sub/c.html", "<h1>C</h1><p><a href=\"../a.html\">to A</a></p>"}}};
    }

    template <typename Control>
    static Control* Find(const QWidget& window, const char* name) {
        return window.findChild<Control*>(name);
    }

    static HelpBrowser* PageOf(const QWidget& window) { return window.findChild<HelpBrowser*>("txPage"); }

    // The path of the page that the window shows.
    static std::string PathOf(const QWidget& window) { return PageOf(window)->source().path().toStdString(); }

    static std::vector<frmHelp*> HelpWindows() {
        std::vector<frmHelp*> windows;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* help = qobject_cast<frmHelp*>(widget))
                windows.push_back(help);
        return windows;
    }
};
