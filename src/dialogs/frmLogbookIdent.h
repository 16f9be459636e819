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

// The content of the event entry dialog: the cells of a row, and its tag as the event ID. In data and
// comment, CR LF separates the lines.
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

// The event entry dialog: shows one entry field by field, and lets the person write its comment. For an entry
// without one it proposes the control's own error text, selected as a whole so that typing replaces it.
class frmLogbookIdent : public FittedDialog {
    Q_OBJECT

  public:
    // The proposed comment for an entry with this data; "" for none.
    using Proposal = std::function<QString(const QString& data)>;

    frmLogbookIdent(Language language, Proposal propose, QWidget* parent);

    // Shows an entry and waits for the person. Afterwards Comment() has the result.
    void ShowEntry(const LogbookIdent& entry);

    // The person's comment, with CR LF between lines: "" leaves the comment as it was, ClearMark asks for an
    // empty one. A person may also type the mark.
    const QString& Comment() const { return comment_; }
    static constexpr const char* ClearMark = "!!Clear!!";

    // True when the person closed the window by its title bar, to see no further entries.
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
