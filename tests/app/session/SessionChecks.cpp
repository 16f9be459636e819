// SPDX-License-Identifier: MIT
// The window and its settings against the model. Each answers with the first difference, or "".
#include "app/session/RandomSession.h"

#include "app/AppIcons.h"

#include <QAccessible>
#include <QFile>
#include <QPlainTextEdit>
#include <QProgressBar>

#include <nlohmann/json.hpp>

namespace {

struct ItemText {
    const char* Name;
    const char* English;
    const char* German;
};
constexpr ItemText ItemTexts[] = {
    {"mnuFileOpen", "&Open...", "Ö&ffnen..."},
    {"mnuVContent", "&Inhalt", "&Inhalt"},
    {"mnuExtrasFilters", "&Log filter settings...", "&Logbuch Filtereinstellungen..."},
    {"mnuExtrasFindNext", "Find &next", "Suche &nächstes"},
    {"mnuPopupRemove", "Remove from list", "&Entfernen"},
    {"Refresh", "Refresh", "Aktualisieren"},
};

QString Unlike(const QString& what, const QString& found, const QString& expected) {
    return found == expected ? QString() : what + " is \"" + found + "\" instead of \"" + expected + '"';
}

QString Unlike(const QString& what, int found, int expected) {
    return Unlike(what, QString::number(found), QString::number(expected));
}

QString FirstOf(std::initializer_list<QString> differences) {
    for (const QString& difference : differences)
        if (!difference.isEmpty())
            return difference;
    return {};
}

QString RowsAsText(const std::set<int>& rows) {
    QStringList texts;
    for (const int row : rows)
        texts << QString::number(row);
    return texts.join(',');
}

} // namespace

QString RandomSession::Difference() const {
    if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr)
        return "a dialog or a menu is left open";
    if (Book->Busy || QApplication::overrideCursor() != nullptr)
        return "the window is left busy";
    return FirstOf({RowsDifference(), SelectionDifference(), TextsDifference(), SettingsDifference(),
                    LayoutDifference(), OverviewDifference()});
}

QString RandomSession::RowsDifference() const {
    const QAbstractItemModel* const list = List()->model();
    for (int row = 0; row < std::min(list->rowCount(), Model.RowCount()); ++row) {
        QStringList shown;
        QStringList expected;
        for (int column = 0; column < 7; ++column) {
            shown << Cell(row, column);
            expected << Model.Cell(row, column);
        }
        if (shown != expected)
            return Unlike(QString("row %1").arg(row), shown.join('/'), expected.join('/'));
        const int icon = Model.EntryOf(row).Icon + (Model.Rows[row].Highlighted ? 14 : 0);
        const int shownIcon = list->index(row, 0).data(LogbookModel::ImageRole).toInt();
        if (shownIcon != icon)
            return Unlike(QString("the icon of row %1").arg(row), shownIcon, icon);
    }
    if (list->rowCount() != Model.RowCount())
        return Unlike("the number of rows", list->rowCount(), Model.RowCount());
    const QHeaderView* const header = List()->horizontalHeader();
    if (header->isSortIndicatorShown() != Model.Sorted)
        return "the sign of the order is wrong";
    if (Model.Sorted && (header->sortIndicatorSection() != Model.SortColumn ||
                         (header->sortIndicatorOrder() == Qt::DescendingOrder) != Model.Descending))
        return "the list says another order";
    return {};
}

QString RandomSession::SelectionDifference() const {
    std::set<int> selected;
    for (const RowRange& range : List()->SelectedRanges())
        for (std::size_t row = range.First; row <= range.Last; ++row)
            selected.insert(static_cast<int>(row));
    if (selected != Model.Selected)
        return Unlike("the selection", RowsAsText(selected), RowsAsText(Model.Selected));
    // Where there was none, the list may take one when it gets the focus; it is not selected.
    if (Model.Current >= 0 && List()->currentIndex().row() != Model.Current)
        return Unlike("the current row", List()->currentIndex().row(), Model.Current);
    return Unlike("the selected row", List()->SelectedRow().value_or(-1), Model.SelectedRow());
}

QString RandomSession::TextsDifference() const {
    for (const ItemText& item : ItemTexts)
        if (Item(item.Name)->text() != Localised(item.English, item.German))
            return Unlike(item.Name, Item(item.Name)->text(), Localised(item.English, item.German));
    const bool findsAgain = Item("mnuExtrasFindNext")->isEnabled() && Item("mnuExtrasFindPrev")->isEnabled();
    return FirstOf({Unlike("the title", Window->windowTitle(), Model.Title),
                    Unlike("the header", HeaderTexts().join('/'),
                           Localised("Event type/Data/Sender/Name/Time/Index/Comment",
                                     "Ereignistyp/Inhalt/Quelle/Name/Zeit/Index/Kommentar")),
                    Unlike("the counts", Counts(),
                           QString("%1 / %2 %3")
                               .arg(Model.RowCount())
                               .arg(Model.Entries.size())
                               .arg(Localised("Items", "Einträge"))),
                    Unlike("the status", Find<QLabel>("statusText")->text(), Model.Status()),
                    Unlike("why entries are hidden",
                           QAccessible::queryAccessibleInterface(Find<QLabel>("statusCounts"))
                               ->text(QAccessible::Description),
                           Model.WhyHidden()),
                    Unlike("the filter button", FilterButtonIsFilled(), Model.HasOtherFilters()),
                    Unlike("the content", Find<QPlainTextEdit>("txContent")->toPlainText(), Model.Content),
                    Unlike("finding again", findsAgain, Model.CanFindAgain)});
}

bool RandomSession::FilterButtonIsFilled() const {
    const auto picture = [](const QIcon& icon) { return icon.pixmap(QSize(24, 24)).toImage(); };
    return picture(Item("Filter")->icon()) == picture(MakeAppIcon(AppIcon::FilterInForce));
}

// The settings file is read anew, by other means than the program's.
QString RandomSession::SettingsDifference() const {
    QFile file(settingsFile_);
    const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("{}");
    const auto root = nlohmann::json::parse(content.toStdString(), nullptr, false);
    if (!root.is_object())
        return "the settings file is damaged";
    const auto filters = root.value("/Logbook/Filters"_json_pointer, nlohmann::json::object());
    const auto texts = [&](const char* name, const char* countName) {
        QStringList list;
        const int count = filters.value(countName, 0);
        for (int number = 1; number <= count; ++number)
            list << QString::fromStdString(
                filters.value(name + std::to_string(number), std::string("missing")));
        return list.join("\n");
    };
    return FirstOf(
        {Unlike("the stored filters", texts("Filter", "FilterCount"), Model.StoredFilters.join('\n')),
         Unlike("the stored strings", texts("StringFilter", "SpecialFilterCount"),
                Model.StoredStrings.join('\n')),
         Unlike("the stored language", root.value("DialogLanguage", 0), Model.Language)});
}

QString RandomSession::LayoutDifference() const {
    const QWidget* const content = Find<QPlainTextEdit>("txContent");
    const QWidget* const viewer = Find<QWidget>("pbTagViewer");
    const QWidget* const area = List()->parentWidget();
    constexpr int Gap = 5; // pixels, 80 twips
    const int listHeight = area->height() - (Model.ContentShown ? content->height() + Gap : 0);
    const bool hasRoom = listHeight > 0;
    for (int column = 0; column < columnWidths_.size(); ++column)
        if (List()->columnWidth(column) != columnWidths_[column])
            return Unlike(QString("the width of column %1").arg(column), List()->columnWidth(column),
                          columnWidths_[column]);
    return FirstOf({Unlike("the content pane", content->isVisible(), Model.ContentShown),
                    Unlike("its item", Item("mnuVContent")->isChecked(), Model.ContentShown),
                    Unlike("the tool bar", Find<QWidget>("tbToolBar")->isVisible(), toolBarShown_),
                    Unlike("the status bar", Find<QWidget>("sbStatusBar")->isVisible(), statusBarShown_),
                    Unlike("the progress bar", Find<QProgressBar>("ProgressBar")->isVisible(), false),
                    Unlike("the list's width", List()->width(), area->width() - viewer->width()),
                    Unlike("the tag viewer's place", viewer->x(), List()->width()),
                    hasRoom ? Unlike("the list's height", List()->height(), listHeight) : QString(),
                    hasRoom && Model.ContentShown
                        ? Unlike("the content's place", content->y(), listHeight + Gap)
                        : QString()});
}
