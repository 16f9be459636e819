// SPDX-License-Identifier: MIT
#include "dialogs/frmLogbookIdent.h"

#include "list/QtText.h"

#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>

namespace {

constexpr int LinesOfData = 4;
constexpr int LinesOfComment = 10;
constexpr int FewestLines = 3; // of either, where the screen has no room for more

QLabel* MakeLabel(const char* name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    return label;
}

QLineEdit* MakeField(const char* name, QWidget* parent) {
    auto* field = new QLineEdit(parent);
    field->setObjectName(name);
    field->setReadOnly(true);
    return field;
}

// Asks for the room of some lines, and accepts fewer on a small screen.
class TextBox : public QPlainTextEdit {
  public:
    TextBox(const char* name, int lines, QWidget* parent) : QPlainTextEdit(parent), lines_(lines) {
        setObjectName(name);
        setTabChangesFocus(true);
    }

    QSize sizeHint() const override { return QPlainTextEdit::sizeHint().expandedTo({0, HeightOf(lines_)}); }
    QSize minimumSizeHint() const override {
        return {QPlainTextEdit::minimumSizeHint().width(), HeightOf(FewestLines)};
    }

  private:
    int HeightOf(int lines) const {
        const int frame = 2 * frameWidth() + qRound(2 * document()->documentMargin());
        return fontMetrics().lineSpacing() * lines + frame;
    }

    int lines_;
};

} // namespace

frmLogbookIdent::frmLogbookIdent(Language language, Proposal propose, QWidget* parent)
    : FittedDialog(parent),
      language_(language),
      propose_(std::move(propose)),
      lbEvent(MakeLabel("lbEvent", this)),
      tbEvent(MakeField("tbEvent", this)),
      lbIdent(MakeLabel("lbIdent", this)),
      tbIdent(new TextBox("tbIdent", LinesOfData, this)),
      lbEmitter(MakeLabel("lbEmitter", this)),
      tbEmitter(MakeField("tbEmitter", this)),
      lbName(MakeLabel("lbName", this)),
      tbName(MakeField("tbName", this)),
      lbTime(MakeLabel("lbTime", this)),
      tbTime(MakeField("tbTime", this)),
      lbIndex(MakeLabel("lbIndex", this)),
      tbIndex(MakeField("tbIndex", this)),
      lbEventID(MakeLabel("lbEventID", this)),
      tbEventID(MakeField("tbEventID", this)),
      lbComment(MakeLabel("lbComment", this)),
      tbComment(new TextBox("tbComment", LinesOfComment, this)),
      cmdOK(new QPushButton(this)),
      cmdCancel(new QPushButton(this)) {
    setObjectName("frmLogbookIdent");
    cmdOK->setObjectName("cmdOK");
    cmdCancel->setObjectName("cmdCancel");
    cmdOK->setDefault(true);
    tbIdent->setReadOnly(true);
    tbIdent->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(cmdOK, QDialogButtonBox::AcceptRole);
    buttons->addButton(cmdCancel, QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmLogbookIdent::OK);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    // Enter alone is a line break in the comment.
    auto* accept = new QShortcut(Qt::CTRL | Qt::Key_Return, this);
    connect(accept, &QShortcut::activated, this, &frmLogbookIdent::OK);

    auto* layout = new QGridLayout;
    const std::pair<QLabel*, QWidget*> rows[] = {
        {lbEvent, tbEvent}, {lbIdent, tbIdent}, {lbEmitter, tbEmitter}, {lbName, tbName},
        {lbTime, tbTime},   {lbIndex, tbIndex}, {lbEventID, tbEventID}, {lbComment, tbComment}};
    int row = 0;
    for (const auto& [label, field] : rows) {
        const bool isBox = field == tbIdent || field == tbComment;
        label->setBuddy(field);
        layout->addWidget(label, row, 0,
                          isBox ? Qt::AlignTop | Qt::AlignLeft : Qt::AlignVCenter | Qt::AlignLeft);
        layout->addWidget(field, row, 1);
        layout->setRowStretch(row, field == tbComment ? 3 : field == tbIdent ? 1 : 0);
        ++row;
    }
    layout->setColumnStretch(1, 1);
    LayOut(layout, buttons);

    LoadLanguage();
    resize(sizeHint().expandedTo({560, 0}));
}

void frmLogbookIdent::LoadLanguage() {
    setWindowTitle(QtText(TextId::EventEntryTitle, language_));
    const struct {
        QLabel* Label;
        TextId Caption;
    } captions[] = {{lbEvent, TextId::lbEvent},     {lbIdent, TextId::lbIdent},
                    {lbEmitter, TextId::lbEmitter}, {lbName, TextId::lbName},
                    {lbTime, TextId::lbTime},       {lbIndex, TextId::lbIndex},
                    {lbEventID, TextId::lbEventID}, {lbComment, TextId::lbComment}};
    for (const auto& [label, caption] : captions) {
        label->setText(QtText(caption, language_));
        label->buddy()->setAccessibleName(QtPlainText(caption, language_).chopped(1));
    }
    cmdOK->setText(QtText(TextId::ButtonOK, language_));
    cmdCancel->setText(QtText(TextId::ButtonCancel, language_));
}

void frmLogbookIdent::ShowEntry(const LogbookIdent& entry) {
    tbEvent->setText(entry.Event);
    data_ = entry.Ident;
    tbIdent->setPlainText(entry.Ident);
    tbEmitter->setText(entry.Emitter);
    tbName->setText(entry.Name);
    tbTime->setText(entry.Time);
    tbIndex->setText(entry.Index);
    tbEventID->setText(entry.EventID);
    tbComment->setPlainText(entry.Comment);
    for (QLineEdit* field : {tbEvent, tbEmitter, tbName, tbTime, tbIndex, tbEventID})
        field->setCursorPosition(0);
    exec();
}

void frmLogbookIdent::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    tbComment->setFocus();
    if (event->spontaneous())
        return;
    comment_.clear();
    closed_ = false;
    if (tbComment->document()->isEmpty()) {
        tbComment->setPlainText(propose_(data_));
        tbComment->selectAll();
    }
}

// The box's own text has every blank as typed, also non-breaking ones.
QString frmLogbookIdent::CommentText() const {
    QString text = tbComment->document()->toRawText();
    for (const QChar lineEnd : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        text.replace(lineEnd, "\r\n");
    return text;
}

void frmLogbookIdent::OK() {
    comment_ = CommentText();
    if (comment_.isEmpty())
        comment_ = ClearMark;
    accept();
}

void frmLogbookIdent::closeEvent(QCloseEvent* event) {
    closed_ = true;
    QDialog::closeEvent(event);
}
