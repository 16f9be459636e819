// SPDX-License-Identifier: MIT
#pragma once

#include "list/ListOfRows.h"
#include "rows/RowRanges.h"
#include "rows/SortDirection.h"

#include <QTableView>

#include <optional>

class LogbookModel;

// The logbook list on the screen. It turns keys, clicks and dropped files into signals to its window; it does
// not change the logbook itself. The keyboard's focus is on a row and drawn around it.
class LogbookView : public ListOfRows<QTableView> {
    Q_OBJECT

  public:
    explicit LogbookView(QWidget* parent = nullptr);

    void SetLogbook(LogbookModel* model);
    LogbookModel* Logbook() const { return model_; }

    // The selected rows.
    RowRanges SelectedRanges() const;

    // Selects exactly these rows. Makes `current`, if given, the current row, at which a selection with Shift
    // begins. Does not scroll.
    void SelectRanges(const RowRanges& ranges, std::optional<int> current);

    // Sorts by a column, as a click on its header does or in this direction; the selection stays on its
    // entries.
    void SortByColumn(int column, std::optional<SortDirection> direction = {});

    // Makes each column as wide as the header and the rows around the shown ones need, and no wider than the
    // list.
    void FitColumnWidths();

    // Removes these rows from the list. Then selects the row that followed the last of them, or else the last
    // row of the list.
    void RemoveFromList(const RowRanges& ranges);

    // Removes these rows. What is selected and on the screen stays so, as far as it is left; if a selection
    // is gone altogether, as RemoveFromList does.
    void RemoveBeside(const RowRanges& ranges);

    // Shows the column by which the list is sorted, if any.
    void ShowSortIndicator();

    // Selects the row alone and scrolls it into view.
    void SelectAndShow(int row);

    // When a sort scatters a selection over more ranges than this, only the current row stays selected: the
    // view checks every range for each cell that it paints.
    static constexpr std::size_t MostSelectedRanges = 20000;

  signals:
    void RemoveFromListWanted();
    void PropertiesWanted();
    void CopyWanted();
    void ToggleHighlightingWanted();
    void PopupWanted(const QPoint& globalPosition);
    void FileDropped(const QString& path);

    // The events after which the window updates the content pane and the tag viewer. RowClicked comes when
    // the mouse button goes down or up on a row; a drag may end anywhere.
    void RowClicked();
    void KeyUp();
    void MouseUp();

    // The screen reader has the new words of this visible row.
    void RowAnnounced(int row);

  protected:
    void OrderRemoval() override { emit RemoveFromListWanted(); }
    void OrderPopup(const QPoint& globalPosition) override { emit PopupWanted(globalPosition); }
    void DoubleClicked(QPoint place) override;
    bool event(QEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    QRect RowRect(int row) const;
    void AnnounceRows(const RowRanges& rows);
    void AnnounceRow(int row);
    static void TakeCopy(QDropEvent* event);

    LogbookModel* model_ = nullptr;
    bool rowPressed_ = false; // the mouse button went down on a row
};
