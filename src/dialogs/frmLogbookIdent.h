// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/FittedDialog.h"
#include "settings/Language.h"

#include <functional>
#include <string>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// What the event entry dialog shows: the cells of a row, and its tag as the event ID. In data and comment the
// lines are separated by line breaks (CR LF).
struct LogbookIdent {
    QString Event;
    QString Ident;
    QString Emitter;
    QString Name;
    QString Time;
    QString Index;
    QString EventID;
    QString Comment;
};

// The event entry dialog: one entry field by field, and its comment to be written. Where the entry has none,
// the control's own error text is proposed, selected as a whole so that typing replaces it.
class frmLogbookIdent : public FittedDialog {
    Q_OBJECT

  public:
    // What is proposed for an entry with this data; "" for nothing.
    using Proposal = std::function<QString(const QString& data)>;

    frmLogbookIdent(Language language, Proposal propose, QWidget* parent);

    // Shows an entry and waits. Afterwards Comment() has what became of it.
    void ShowEntry(const LogbookIdent& entry);

    // What the person wants as comment, lines separated by CR LF: "" leaves the comment as it was, ClearMark
    // asks for an empty one. A person may type the mark, too.
    const QString& Comment() const { return comment_; }
    static constexpr const char* ClearMark = "!!Clear!!";

    // True when the window was closed by its title bar: then no further entries are wanted.
    bool WasClosed() const { return closed_; }

  protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void LoadLanguage();
    QString CommentText() const;
    void OK();

    Language language_;
    Proposal propose_;
    QString data_;
    QString comment_;
    bool closed_ = false;
    QLabel* lbEvent;
    QLineEdit* tbEvent;
    QLabel* lbIdent;
    QPlainTextEdit* tbIdent;
    QLabel* lbEmitter;
    QLineEdit* tbEmitter;
    QLabel* lbName;
    QLineEdit* tbName;
    QLabel* lbTime;
    QLineEdit* tbTime;
    QLabel* lbIndex;
    QLineEdit* tbIndex;
    QLabel* lbEventID;
    QLineEdit* tbEventID;
    QLabel* lbComment;
    QPlainTextEdit* tbComment;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
};
