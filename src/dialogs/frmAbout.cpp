// SPDX-License-Identifier: MIT
#include "dialogs/frmAbout.h"

#include "dialogs/ScreenRoom.h"
#include "list/QtText.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTextLayout>
#include <QVBoxLayout>

#include <charconv>
#include <cmath>

namespace {

constexpr int IconSize = 64;
constexpr int TextWidth = 600;
constexpr int FewestLines = 3; // of each box, where the screen has no room for its whole text

// The room that a box needs above its lines, and the same below them.
int MarginOf(const QPlainTextEdit& box) {
    return static_cast<int>(std::ceil(box.document()->documentMargin())) + box.frameWidth();
}

// The height of a line as a box lays it out; the font's own spacing may be rounded down.
qreal LineHeight(const QPlainTextEdit& box) {
    QTextLayout layout("X", box.font());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLeadingIncluded(true);
    layout.endLayout();
    return line.height();
}

// The height of a box for this many lines. With one pixel less it has a scroll bar.
int HeightOf(const QPlainTextEdit& box, int lines) {
    return static_cast<int>(std::ceil(LineHeight(box) * lines)) + 2 * MarginOf(box) + 1;
}

// The number of lines of its text in a box as wide as TextWidth.
int LinesIn(const QPlainTextEdit& box) {
    const QRect room(0, 0, TextWidth - 2 * MarginOf(box), QWIDGETSIZE_MAX);
    const QFontMetrics font = box.fontMetrics();
    return font.boundingRect(room, Qt::TextWordWrap, box.toPlainText()).height() / font.lineSpacing();
}

// A text to read and to copy; Tab leaves it.
void MakeReadOnly(QPlainTextEdit& box) {
    box.setReadOnly(true);
    box.setTabChangesFocus(true);
    box.setMinimumHeight(HeightOf(box, FewestLines));
}

// Joins the lines of each paragraph, so that the box breaks them at its own width.
QString LicenceText() {
    QFile file(":/about/LICENSE");
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList paragraphs = QString::fromUtf8(file.readAll()).trimmed().split("\n\n");
    for (QString& paragraph : paragraphs)
        paragraph.replace('\n', ' ');
    return paragraphs.join("\n\n");
}

} // namespace

std::string VersionText(std::string_view version) {
    std::string text;
    while (true) {
        const std::string_view part = version.substr(0, version.find('.'));
        unsigned long number = 0;
        std::from_chars(part.data(), part.data() + part.size(), number);
        text += std::to_string(number);
        if (part.size() == version.size())
            return text;
        text += '.';
        version.remove_prefix(part.size() + 1);
    }
}

frmAbout::frmAbout(Language language, std::string_view version, const std::vector<LibraryVersion>& libraries,
                   QWidget* parent)
    : FittedDialog(parent),
      language_(language),
      imgIcon(new QLabel(this)),
      lblDesignation(new QLabel(this)),
      lblVersionType(new QLabel(this)),
      lblVersion(new QLabel(this)),
      lblLicence(new QLabel(this)),
      tbLicence(new QPlainTextEdit(this)),
      lblLibraries(new QLabel(this)),
      tbLibraries(new QPlainTextEdit(this)),
      cmdOK(new QPushButton(this)) {
    setObjectName("frmAbout");
    imgIcon->setObjectName("imgIcon");
    lblDesignation->setObjectName("lblDesignation");
    lblVersionType->setObjectName("lblVersionType");
    lblVersion->setObjectName("lblVersion");
    lblLicence->setObjectName("lblLicence");
    tbLicence->setObjectName("tbLicence");
    lblLibraries->setObjectName("lblLibraries");
    tbLibraries->setObjectName("tbLibraries");
    cmdOK->setObjectName("cmdOK");

    const QIcon icon = parent ? parent->window()->windowIcon() : QApplication::windowIcon();
    imgIcon->setPixmap(icon.pixmap(IconSize));
    imgIcon->setVisible(!icon.isNull());
    QFont large = lblDesignation->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    large.setBold(true);
    lblDesignation->setFont(large);
    lblVersion->setTextInteractionFlags(Qt::TextSelectableByMouse);
    tbLicence->setPlainText(LicenceText());
    MakeReadOnly(*tbLicence);
    MakeReadOnly(*tbLibraries);
    cmdOK->setDefault(true);

    auto* names = new QVBoxLayout;
    names->addWidget(lblDesignation);
    names->addWidget(lblVersion);
    names->addWidget(lblVersionType);
    names->addStretch();
    auto* head = new QHBoxLayout;
    head->addWidget(imgIcon, 0, Qt::AlignTop);
    head->addLayout(names, 1);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(cmdOK, QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addWidget(lblLicence);
    layout->addWidget(tbLicence, 1);
    layout->addWidget(lblLibraries);
    layout->addWidget(tbLibraries);
    layout->addWidget(buttons);

    LoadLanguage(version, libraries);
    FitToTexts();
    cmdOK->setFocus();
}

// The library list gets the room of its lines; the licence gets the rest.
void frmAbout::FitToTexts() {
    tbLibraries->setMaximumHeight(HeightOf(*tbLibraries, std::max(FewestLines, LinesIn(*tbLibraries))));
    const QMargins margins = layout()->contentsMargins();
    const int missing = HeightOf(*tbLicence, LinesIn(*tbLicence)) - tbLicence->sizeHint().height();
    const QSize wanted(TextWidth + margins.left() + margins.right(), sizeHint().height() + missing);
    resize(WithinScreen(wanted, *screen()));
}

void frmAbout::LoadLanguage(std::string_view version, const std::vector<LibraryVersion>& libraries) {
    setWindowTitle(QtText(TextId::AboutTitle, language_));
    lblDesignation->setText(QtText(TextId::AboutDesignation, language_));
    lblVersionType->setText(QString()); // releases of a special type would name it here
    lblVersion->setText(QtText(TextId::AboutVersion, language_) + ToQString(VersionText(version)));
    lblLicence->setText(QtText(TextId::AboutLicence, language_));
    tbLicence->setAccessibleName(QtText(TextId::AboutLicenceText, language_));
    lblLibraries->setText(QtText(TextId::AboutLibraries, language_) + ':');
    tbLibraries->setAccessibleName(QtText(TextId::AboutLibraries, language_));
    cmdOK->setText(QtText(TextId::ButtonOK, language_));
    QStringList lines;
    for (const LibraryVersion& library : libraries) {
        const QString name = ToQString(library.Name) + ' ' + ToQString(library.Version);
        lines << name.trimmed() + " (" + ToQString(library.Licence) + ')';
    }
    tbLibraries->setPlainText(lines.join('\n'));
}
