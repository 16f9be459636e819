// SPDX-License-Identifier: MIT
#include "dialogs/frmAbout.h"

#include "list/QtText.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <charconv>

namespace {

constexpr int IconSize = 64;

// A text to read and to copy; Tab leaves it.
void MakeReadOnly(QPlainTextEdit& box, int lines) {
    box.setReadOnly(true);
    box.setTabChangesFocus(true);
    box.setMinimumHeight(box.fontMetrics().lineSpacing() * lines + 12);
}

// Its paragraphs as lines that the box breaks as wide as it is.
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
    : QDialog(parent),
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
    MakeReadOnly(*tbLicence, 9);
    MakeReadOnly(*tbLibraries, 5);
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
    layout->addWidget(tbLicence, 3);
    layout->addWidget(lblLibraries);
    layout->addWidget(tbLibraries, 2);
    layout->addWidget(buttons);

    LoadLanguage(version, libraries);
    resize(sizeHint().expandedTo({500, 440}));
    cmdOK->setFocus();
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
