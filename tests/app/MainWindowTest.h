// SPDX-License-Identifier: MIT
#pragma once

#include "app/MainStatusBar.h"
#include "app/frmMain.h"
#include "filter/FilterText.h"
#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "support/MemorySettings.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

// What tests of the main window share: a real window over settings of its own, and a person who answers its
// message boxes.
class MainWindowTest : public QObject {
  protected:
    // Every test begins with a shown window without a logbook.
    void OpenWindow() {
        MakeWindow();
        Window->show();
        QVERIFY(QTest::qWaitForWindowExposed(Window.get()));
        MessageTexts.clear();
        MessageTitles.clear();
    }

    // One that is not shown yet.
    void MakeWindow() {
        Window.reset();
        Filters = std::make_unique<StoredActiveFilters>(*Settings);
        Document = std::make_unique<LogbookDocument>(
            LogbookDocument::Surroundings{.Filters = *Filters, .Settings = *Settings, .Temp = Temp},
            CodePage(), Folder.Path() / "state");
        Book = &Document->Book();
        Window = std::make_unique<frmMain>(*Document, *Settings);
    }

    void StartAfresh() {
        Window.reset();
        Person = std::make_unique<QObject>(); // whom the test before left waiting is gone
        Store = std::make_unique<MemorySettings>();
        Settings = std::make_unique<Registry>(*Store);
        std::filesystem::remove_all(Folder.Path() / "state");
        OpenWindow();
    }

    template <class T>
    T* Find(const char* name) const {
        return Window->findChild<T*>(name);
    }
    LogbookView* List() const { return Find<LogbookView>("lvLogbook"); }
    QAction* Item(const char* name) const { return Find<QAction>(name); }
    QString Counts() const { return Find<QLabel>("statusCounts")->text(); }
    QString Cell(int row, int column) const { return List()->model()->index(row, column).data().toString(); }

    QStringList Column(int column) const {
        QStringList cells;
        for (int row = 0; row < List()->model()->rowCount(); ++row)
            cells << Cell(row, column);
        return cells;
    }

    std::string File(std::string_view name, const std::vector<std::string>& lines) const {
        return Folder.Write(name, Lines(lines));
    }

    // A logbook of so many errors, whose data are their numbers.
    std::string FileOfErrors(int count) const {
        std::vector<std::string> lines;
        for (int i = 0; i < count; ++i)
            lines.push_back(Header("BERR:    " + std::to_string(i)));
        return File("errors.log", lines);
    }

    QStringList HeaderTexts() const {
        QStringList texts;
        for (int column = 0; column < List()->model()->columnCount(); ++column)
            texts << List()->model()->headerData(column, Qt::Horizontal).toString();
        return texts;
    }

    void ClickHeader(int column) const {
        QHeaderView* const header = List()->horizontalHeader();
        const QPoint place(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                           header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    }

    QPoint RowPoint(int row) const { return List()->visualRect(List()->model()->index(row, 0)).center(); }

    static FilterDefinition Filter(const char* text) {
        FilterDefinition filter;
        ParseFilter(text, filter);
        return filter;
    }

    // Confirms the next message boxes and remembers their texts and titles.
    void AnswerMessages(int count) {
        if (count == 0)
            return;
        QTimer::singleShot(0, Person.get(), [this, count] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return AnswerMessages(count);
            MessageTexts << box->text();
            MessageTitles << box->windowTitle();
            box->accept();
            AnswerMessages(count - 1);
        });
    }

    // Presses a button of the next question and remembers its text and title.
    void AnswerQuestion(QMessageBox::StandardButton button) {
        QTimer::singleShot(0, Person.get(), [this, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return AnswerQuestion(button);
            MessageTexts << box->text();
            MessageTitles << box->windowTitle();
            box->button(button)->click();
        });
    }

    // Presses a button of the next question by what stands on it.
    void AnswerChoice(const QString& text) {
        QTimer::singleShot(0, Person.get(), [this, text] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return AnswerChoice(text);
            MessageTexts << box->text();
            for (QAbstractButton* const button : box->buttons())
                if (button->text().remove('&') == text)
                    return button->click();
            box->reject();
            QFAIL("no such button");
        });
    }

    // Chooses a path in the next file dialog, or cancels it.
    void AnswerFileDialog(const QString& path, QString* title = nullptr, QStringList* filters = nullptr) {
        QTimer::singleShot(0, Person.get(), [=, this] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return AnswerFileDialog(path, title, filters);
            if (title != nullptr)
                *title = dialog->windowTitle();
            if (filters != nullptr)
                *filters = dialog->nameFilters();
            QCOMPARE(dialog->objectName(), QString("dlgCommonDialog"));
            if (path.isEmpty())
                return dialog->reject();
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
            QMetaObject::invokeMethod(dialog, "accept");
        });
    }

    // Enters a comment in the event entry dialog of a row.
    void EnterComment(int row, const QString& comment) {
        List()->selectRow(row);
        QTimer::singleShot(0, Person.get(), [comment] {
            QWidget* const dialog = QApplication::activeModalWidget();
            dialog->findChild<QPlainTextEdit*>("tbComment")->setPlainText(comment);
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
        });
        QTest::keyClick(List(), Qt::Key_Return);
        QCOMPARE(Cell(row, 6), comment);
    }

    // A key in the window, which a dialog that was closed may have left inactive.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QApplication::setActiveWindow(Window.get());
        QTest::keyClick(Window.get(), key, modifiers);
    }

    std::unique_ptr<QObject> Person; // who answers
    TemporaryFolder Folder;
    TempFolder Temp{Folder.Path()};
    std::unique_ptr<StoredActiveFilters> Filters;
    std::unique_ptr<LogbookDocument> Document;
    Logbook* Book = nullptr;
    std::unique_ptr<MemorySettings> Store;
    std::unique_ptr<Registry> Settings;
    std::unique_ptr<frmMain> Window;
    QStringList MessageTexts;
    QStringList MessageTitles;
};
