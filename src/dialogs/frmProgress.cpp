// SPDX-License-Identifier: MIT
#include "dialogs/frmProgress.h"

#include "list/QtText.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
// A step may report often; a person sees no more than this.
constexpr qint64 EventTime = 20; // milliseconds
} // namespace

frmProgress::frmProgress(TextId what, Language language, QWidget* parent)
    : FittedDialog(parent), pbProgress(new QProgressBar(this)) {
    setObjectName("frmProgress");
    setWindowTitle(QtText(what, language));
    setWindowModality(Qt::WindowModal);
    auto* const lblWhat = new QLabel(QtText(what, language), this);
    lblWhat->setObjectName("lblWhat");
    pbProgress->setObjectName("pbProgress");
    pbProgress->setAccessibleName(QtText(TextId::ProgressBar, language));
    auto* const buttons = new QDialogButtonBox(this);
    QPushButton* const cancel =
        buttons->addButton(QtText(TextId::ButtonCancel, language), QDialogButtonBox::RejectRole);
    cancel->setObjectName("cmdCancel");
    connect(buttons, &QDialogButtonBox::rejected, this, &frmProgress::reject);
    auto* const layout = new QVBoxLayout;
    layout->addWidget(lblWhat);
    layout->addWidget(pbProgress);
    LayOut(layout, buttons);
    resize(sizeHint().expandedTo({360, 0}));
}

bool frmProgress::GoesOn(double percent) {
    if (!sinceBegin_.isValid()) {
        sinceBegin_.start();
        sinceEvents_.start();
    }
    if (isEnded_ || sinceBegin_.elapsed() < ShownAfter.count())
        return !isEnded_;
    if (isVisible() && sinceEvents_.elapsed() < EventTime)
        return true;
    pbProgress->setValue(static_cast<int>(percent));
    if (!isVisible())
        show();
    QCoreApplication::processEvents();
    sinceEvents_.start();
    return !isEnded_;
}

void frmProgress::reject() {
    isEnded_ = true;
    FittedDialog::reject();
}
