// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Registry.h"
#include "support/MemorySettings.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <functional>

// What tests of dialogs share: settings of their own, and a person who answers the dialogs that open in turn.
class DialogTest : public QObject {
  protected:
    void StartAfresh() {
        Store = MemorySettings();
        Answered = 0;
        MessageTexts.clear();
    }

    // Lets the person deal with the next dialog of this class that opens above `below`; dealing with it must
    // close it.
    template <class Dialog>
    void Answer(std::function<void(Dialog&)> deal, QWidget* below = QApplication::activeModalWidget()) {
        QTimer::singleShot(0, this, [this, deal, below] {
            QWidget* const shown = QApplication::activeModalWidget();
            auto* const dialog = shown == below ? nullptr : qobject_cast<Dialog*>(shown);
            if (dialog == nullptr)
                return Answer<Dialog>(deal, below);
            deal(*dialog);
            ++Answered;
        });
    }

    // Presses a button of the next message box and remembers its text.
    void AnswerMessage(QMessageBox::StandardButton button) {
        Answer<QMessageBox>([this, button](QMessageBox& box) {
            MessageTexts << box.text();
            box.button(button)->click();
        });
    }

    template <class T>
    static T* Find(const QWidget& dialog, const char* name) {
        return dialog.findChild<T*>(name);
    }
    static QString TextOf(const QWidget& dialog, const char* name) {
        if (const auto* const label = dialog.findChild<QLabel*>(name))
            return label->text();
        return dialog.findChild<QAbstractButton*>(name)->text();
    }
    static void Click(const QWidget& dialog, const char* button) {
        QTest::mouseClick(dialog.findChild<QAbstractButton*>(button), Qt::LeftButton);
    }
    static void Choose(const QWidget& dialog, const char* item) {
        dialog.findChild<QAction*>(item)->trigger();
    }

    static QStringList PopupTexts(const QWidget& dialog) {
        QStringList texts;
        for (const QAction* const item : dialog.findChild<QMenu*>("mnuPopup")->actions())
            texts << item->text();
        return texts;
    }

    static QStringList HeaderTexts(const QTreeWidget& list) {
        QStringList texts;
        for (int column = 0; column < list.columnCount(); ++column)
            texts << list.headerItem()->text(column);
        return texts;
    }

    // The rows, their cells joined by "/".
    static QStringList Rows(const QTreeWidget& list) {
        QStringList rows;
        for (int row = 0; row < list.topLevelItemCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < list.columnCount(); ++column)
                cells << list.topLevelItem(row)->text(column);
            rows << cells.join('/');
        }
        return rows;
    }

    static void Select(QTreeWidget& list, const QList<int>& rows) {
        list.clearSelection();
        for (const int row : rows) {
            list.setCurrentItem(list.topLevelItem(row), 0, QItemSelectionModel::NoUpdate);
            list.topLevelItem(row)->setSelected(true);
        }
    }

    static QPoint RowPoint(const QTreeWidget& list, int row) {
        const QRect cell = list.visualItemRect(list.topLevelItem(row));
        return {list.columnWidth(0) - 4, cell.center().y()};
    }

    static void DoubleClick(QTreeWidget& list, int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, RowPoint(list, row));
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, RowPoint(list, row));
    }

    // The controls that Tab reaches but a screen reader has no name for.
    static QStringList NamelessControls(QWidget& dialog) {
        QStringList nameless;
        for (QWidget* control = dialog.nextInFocusChain(); control != &dialog;
             control = control->nextInFocusChain())
            if ((control->focusPolicy() & Qt::TabFocus) != 0 && control->isVisibleTo(&dialog) &&
                control->focusProxy() == nullptr &&
                QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty())
                nameless << QString(control->metaObject()->className()) + ' ' + control->objectName();
        return nameless;
    }

    // The labels and buttons whose text has less room than it needs.
    static QStringList CutOffTexts(const QWidget& dialog) {
        QStringList cut;
        for (const auto* const label : dialog.findChildren<QLabel*>())
            if (label->isVisible() && !label->wordWrap() && label->width() < label->sizeHint().width())
                cut << label->text();
        for (const auto* const button : dialog.findChildren<QAbstractButton*>())
            if (button->isVisible() && button->width() < button->minimumSizeHint().width())
                cut << button->text();
        return cut;
    }

    std::int32_t StoredNumber(std::string_view subKey, const char* name) const {
        return Settings.ReadSettingLong(name, -1, subKey);
    }

    MemorySettings Store;
    Registry Settings{Store};
    int Answered = 0;
    QStringList MessageTexts;
};
