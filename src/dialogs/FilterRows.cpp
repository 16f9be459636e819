// SPDX-License-Identifier: MIT
#include "dialogs/FilterRows.h"

#include "list/Pictures.h"
#include "list/QtText.h"
#include "list/ToolTip.h"

#include <QTreeWidgetItem>

namespace {

constexpr int ActionRole = Qt::UserRole;

constexpr std::array<const char*, 3> IconPaths{":/filter/include.svg", ":/filter/exclude.svg",
                                               ":/filter/highlight.svg"};
constexpr std::array<TextId, 3> ActionTexts{TextId::obIncludeFilter, TextId::obExcludeFilter,
                                            TextId::obHighlightFilter};

std::size_t PlaceOf(std::int16_t action) { return static_cast<std::size_t>(action - FilterActions::Include); }

} // namespace

FilterRows::FilterRows(const FilterTypeLabels& labels, Language language)
    : labels_(labels), language_(language) {
    // The linker drops a static library's resources unless the code asks for them.
    Q_INIT_RESOURCE(filtericons);
    // Unchanged in a selected row, too; otherwise Qt would tint them with the row's own colour.
    for (std::size_t i = 0; i < icons_.size(); ++i)
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected})
            AddPicture(icons_[i], IconPaths[i], mode);
}

void FilterRows::Write(const FilterDefinition& filter, QTreeWidgetItem& row) const {
    const bool known = filter.FilterType >= 0 && filter.FilterType < FilterTypes::Count;
    const QString type =
        known ? ToQString(labels_.Label(filter.FilterType)) : QString::number(filter.FilterType);
    const QString action = QtPlainText(ActionTexts[PlaceOf(filter.Action)], language_);
    row.setData(FilterColumns::Type, ActionRole, filter.Action);
    row.setIcon(FilterColumns::Type, icons_[PlaceOf(filter.Action)]);
    row.setCheckState(FilterColumns::Type, filter.Active ? Qt::Checked : Qt::Unchecked);
    row.setText(FilterColumns::Type, type);
    row.setToolTip(FilterColumns::Type, type + ": " + action);
    row.setData(FilterColumns::Type, Qt::AccessibleTextRole, type + ": " + action);
    const auto writeText = [&](int column, const std::string& text) {
        row.setText(column, ToQString(text));
        row.setToolTip(column, ToolTipOf(ShownInCell(row.text(column))));
    };
    writeText(FilterColumns::String, filter.StringFilter);
    writeText(FilterColumns::Name, filter.Name);
    writeText(FilterColumns::Emitter, filter.Emitter);
}

FilterDefinition FilterRows::Read(const QTreeWidgetItem& row) const {
    const QString label = row.text(FilterColumns::Type);
    const std::int16_t type = labels_.FilterTypeIndex(label.toStdString());
    return {static_cast<std::int16_t>(row.data(FilterColumns::Type, ActionRole).toInt()),
            type >= 0 ? type : label.toShort(),
            row.text(FilterColumns::String).toStdString(),
            row.text(FilterColumns::Name).toStdString(),
            row.text(FilterColumns::Emitter).toStdString(),
            row.checkState(FilterColumns::Type) == Qt::Checked};
}
