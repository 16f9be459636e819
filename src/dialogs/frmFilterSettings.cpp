// SPDX-License-Identifier: MIT
#include "dialogs/frmFilterSettings.h"

#include "dialogs/DialogButtons.h"
#include "dialogs/FieldNote.h"
#include "dialogs/frmStringSettings.h"
#include "filter/FilterStorage.h"
#include "list/QtText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <algorithm>
#include <initializer_list>
#include <limits>

namespace {

constexpr int FieldCharacters = 24; // the least width of a box; its list may have longer texts

// A box for free text that offers some texts. It never completes typed text, because the filter compares
// exactly.
QComboBox* MakeTextBox(const char* name, QWidget* parent) {
    auto* const box = new QComboBox(parent);
    box->setObjectName(name);
    box->setEditable(true);
    box->setCompleter(nullptr);
    // A filter file may hold longer lists than a field takes by default.
    box->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
    box->setInsertPolicy(QComboBox::NoInsert);
    // Otherwise a typed text that is also in the list would count as picked from it.
    QObject::disconnect(box->lineEdit(), &QLineEdit::editingFinished, nullptr, nullptr);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(FieldCharacters);
    return box;
}

// Shows a text, and selects its row if the list of the box has it.
void SetText(QComboBox& box, const std::string& text) {
    box.setCurrentIndex(box.findText(ToQString(text)));
    box.setEditText(ToQString(text));
}

bool HasNameAndSender(int filterType) { return filterType >= 1 && filterType < FilterTypes::Fatal; }

} // namespace

frmFilterSettings::frmFilterSettings(const FilterDialogContext& context,
                                     std::vector<StringFilter>& stringFilters, QWidget* parent)
    : FittedDialog(parent),
      context_(context),
      stringFilters_(stringFilters),
      lblFilterType(new QLabel(this)),
      cbFilterType(new QComboBox(this)),
      lblEmitter(new QLabel(this)),
      cbEmitter(MakeTextBox("cbEmitter", this)),
      lblEmitterNote(new FieldNote("lblEmitterNote", cbEmitter)),
      lblName(new QLabel(this)),
      cbName(MakeTextBox("cbName", this)),
      lblNameNote(new FieldNote("lblNameNote", cbName)),
      lblStringFilter(new QLabel(this)),
      cbStringFilter(MakeTextBox("cbStringFilter", this)),
      lblStringNote(new FieldNote("lblStringNote", cbStringFilter)),
      cmdPredefinedStrings(new QPushButton(this)),
      frFilterAction(new QGroupBox(this)),
      obExcludeFilter(new QRadioButton(frFilterAction)),
      obIncludeFilter(new QRadioButton(frFilterAction)),
      obHighlightFilter(new QRadioButton(frFilterAction)),
      Timer1(new QTimer(this)) {
    setObjectName("frmFilterSettings");
    NameControls();
    MakeLayout();
    LoadLanguage();
    FillLists();

    connect(cbFilterType, &QComboBox::currentIndexChanged, this, &frmFilterSettings::TypeChanged);
    for (QComboBox* const box : {cbEmitter, cbName, cbStringFilter})
        connect(box, &QComboBox::editTextChanged, this, &frmFilterSettings::ShowNotes);
    // The string can replace the comment only after the box has put the comment into its field.
    connect(cbStringFilter, &QComboBox::activated, this, [this](int row) {
        pickedComment_ = cbStringFilter->itemText(row);
        Timer1->start();
    });
    connect(Timer1, &QTimer::timeout, this, &frmFilterSettings::PutPickedString);
    connect(cmdPredefinedStrings, &QPushButton::clicked, this, &frmFilterSettings::EditPredefinedStrings);
    Preset({});
}

void frmFilterSettings::NameControls() {
    lblFilterType->setObjectName("lblFilterType");
    lblFilterType->setBuddy(cbFilterType);
    cbFilterType->setObjectName("cbFilterType");
    lblEmitter->setObjectName("lblEmitter");
    lblEmitter->setBuddy(cbEmitter);
    lblName->setObjectName("lblName");
    lblName->setBuddy(cbName);
    lblStringFilter->setObjectName("lblStringFilter");
    lblStringFilter->setBuddy(cbStringFilter);
    cmdPredefinedStrings->setObjectName("cmdPredefinedStrings");
    frFilterAction->setObjectName("frFilterAction");
    obExcludeFilter->setObjectName("obExcludeFilter");
    obIncludeFilter->setObjectName("obIncludeFilter");
    obHighlightFilter->setObjectName("obHighlightFilter");
    Timer1->setObjectName("Timer1");
}

void frmFilterSettings::MakeLayout() {
    auto* const fields = new QGridLayout;
    fields->setColumnStretch(1, 1);
    fields->addWidget(lblFilterType, 0, 0);
    fields->addWidget(cbFilterType, 0, 1, 1, 2);
    fields->addWidget(lblEmitter, 1, 0);
    fields->addWidget(cbEmitter, 1, 1, 1, 2);
    fields->addWidget(lblEmitterNote, 2, 1, 1, 2);
    fields->addWidget(lblName, 3, 0);
    fields->addWidget(cbName, 3, 1, 1, 2);
    fields->addWidget(lblNameNote, 4, 1, 1, 2);
    fields->addWidget(lblStringFilter, 5, 0);
    fields->addWidget(cbStringFilter, 5, 1);
    fields->addWidget(cmdPredefinedStrings, 5, 2);
    fields->addWidget(lblStringNote, 6, 1, 1, 2);

    auto* const options = new QVBoxLayout(frFilterAction);
    for (QRadioButton* const option : {obExcludeFilter, obIncludeFilter, obHighlightFilter})
        options->addWidget(option);

    auto* const layout = new QVBoxLayout;
    layout->addLayout(fields);
    layout->addWidget(frFilterAction);
    layout->addStretch();
    LayOut(layout, OkAndCancel(context_.DialogLanguage, *this));
}

void frmFilterSettings::LoadLanguage() {
    const auto text = [this](TextId id) { return QtText(id, context_.DialogLanguage); };
    setWindowTitle(text(TextId::FilterSettingsTitle));
    lblFilterType->setText(text(TextId::cbFilterType));
    lblEmitter->setText(text(TextId::cbEmitter));
    lblName->setText(text(TextId::cbName));
    cmdPredefinedStrings->setText(text(TextId::cmdPredefinedStrings));
    frFilterAction->setTitle(text(TextId::FilterAction));
    obExcludeFilter->setText(text(TextId::obExcludeFilter));
    obIncludeFilter->setText(text(TextId::obIncludeFilter));
    obHighlightFilter->setText(text(TextId::obHighlightFilter));
}

void frmFilterSettings::FillLists() {
    for (std::int16_t type = 0; type < FilterTypes::Count; ++type)
        cbFilterType->addItem(ToQString(context_.Labels.Label(type)));
    for (const std::string_view sender : SenderChoices)
        cbEmitter->addItem(ToQString(sender));
    for (const std::string& sender : context_.Names.Senders)
        if (std::find(SenderChoices.begin(), SenderChoices.end(), sender) == SenderChoices.end())
            cbEmitter->addItem(ToQString(sender));
    for (const std::string& name : context_.Names.Names)
        cbName->addItem(ToQString(name));
}

void frmFilterSettings::Preset(const FilterDefinition& filter) {
    const bool known = filter.FilterType >= 0 && filter.FilterType < FilterTypes::Count;
    unknownType_ = filter.FilterType;
    cbFilterType->setCurrentIndex(known ? filter.FilterType : -1);
    TypeChanged();
    SetText(*cbEmitter, filter.Emitter);
    SetText(*cbName, filter.Name);
    cbStringFilter->setEditText(ToQString(filter.StringFilter));
    obIncludeFilter->setChecked(filter.Action == FilterActions::Include);
    obExcludeFilter->setChecked(filter.Action == FilterActions::Exclude);
    obHighlightFilter->setChecked(filter.Action == FilterActions::Highlight);
}

FilterDefinition frmFilterSettings::Definition() const {
    const int type = cbFilterType->currentIndex();
    const auto textOf = [](const QComboBox* box) {
        return box->isEnabled() ? box->currentText().toStdString() : std::string();
    };
    FilterDefinition filter;
    filter.Action = obIncludeFilter->isChecked()   ? FilterActions::Include
                    : obExcludeFilter->isChecked() ? FilterActions::Exclude
                                                   : FilterActions::Highlight;
    filter.FilterType = type < 0 ? unknownType_ : static_cast<std::int16_t>(type);
    filter.StringFilter = cbStringFilter->currentText().toStdString();
    filter.Name = textOf(cbName);
    filter.Emitter = textOf(cbEmitter);
    return filter;
}

bool frmFilterSettings::FilterExists(std::span<const FilterDefinition> rows) const {
    const FilterDefinition defined = Definition();
    return std::any_of(rows.begin(), rows.end(), [&](FilterDefinition row) {
        row.Active = defined.Active;
        return row == defined;
    });
}

void frmFilterSettings::accept() {
    if (Timer1->isActive())
        PutPickedString();
    resultText_ = "OK";
    QDialog::accept();
}

void frmFilterSettings::TypeChanged() {
    const int type = cbFilterType->currentIndex();
    for (QWidget* const widget : std::initializer_list<QWidget*>{lblEmitter, cbEmitter, lblName, cbName})
        widget->setEnabled(HasNameAndSender(type));
    const bool numbers = type == FilterTypes::Numbers;
    lblStringFilter->setText(
        QtText(numbers ? TextId::NumberList : TextId::cbStringFilter, context_.DialogLanguage));
    cmdPredefinedStrings->setEnabled(!numbers);
    LoadPredefinedStringsToCombo();
    ShowNotes();
}

// Fills the list of the string box with the comments; a list of numbers has none. The text stays.
void frmFilterSettings::LoadPredefinedStringsToCombo() {
    const QString text = cbStringFilter->currentText();
    cbStringFilter->clear();
    if (cbFilterType->currentIndex() != FilterTypes::Numbers)
        for (const StringFilter& filter : stringFilters_)
            cbStringFilter->addItem(ToQString(filter.Comment));
    cbStringFilter->setCurrentIndex(-1);
    cbStringFilter->setEditText(text);
}

void frmFilterSettings::PutPickedString() {
    Timer1->stop();
    const auto picked =
        std::find_if(stringFilters_.begin(), stringFilters_.end(), [&](const StringFilter& filter) {
            return filter.Comment == pickedComment_.toStdString();
        });
    if (picked != stringFilters_.end())
        cbStringFilter->setEditText(ToQString(picked->FilterString));
}

void frmFilterSettings::EditPredefinedStrings() {
    frmStringSettings dialog(context_.Settings, context_.DialogLanguage, stringFilters_, this);
    dialog.exec();
    LoadPredefinedStringsToCombo();
    if (!dialog.ResultText().isEmpty())
        cbStringFilter->setEditText(dialog.ResultText());
}

// Warns below the field, as soon as it is typed, of a text that would cost the person the whole list.
void frmFilterSettings::ShowNotes() {
    const FilterDefinition filter = Definition();
    const auto noteOn = [&](const std::string& text) {
        return text.find('|') == std::string::npos
                   ? QString()
                   : QtText(TextId::FilterWithSeparator, context_.DialogLanguage);
    };
    lblEmitterNote->Say(noteOn(filter.Emitter));
    lblNameNote->Say(noteOn(filter.Name));
    lblStringNote->Say(ObstacleOf(filter) == StorageObstacle::TooLong
                           ? QtText(TextId::FilterTooLong, context_.DialogLanguage)
                           : noteOn(filter.StringFilter));
}
