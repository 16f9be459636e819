// SPDX-License-Identifier: MIT
#pragma once

#include "overview/TimelinePicture.h"

#include <QPixmap>
#include <QWidget>

#include <optional>

// The timeline on the screen.
//
// The wheel zooms, a drag moves, a double click goes to an entry, a drag with Shift selects a span. By keys:
// Left and Right move the cursor, with Shift they select; "+" and "-" zoom around it; Page Up and Page Down
// move the piece that is seen; Home and End lead to the ends; Return goes to the cursor's entry.
class TimelineView : public QWidget {
    Q_OBJECT

  public:
    explicit TimelineView(QWidget* parent);

    // Shows all of a complete history's strip, or nothing. The history must outlive its being shown.
    void ShowHistory(const LogbookHistory* history, EntrySet commented, EntrySet highlighted);

    // The sets are of the history's logbook.
    void ShowMarks(EntrySet commented, EntrySet highlighted);

    // The rows that the list shows, and the entry that is selected in it.
    void ShowList(const std::optional<TimelineSpan>& rows, const std::optional<Timeline::Place>& selected);

    void SetLanguage(Language language);

    void ZoomIn();
    void ZoomOut();
    void ShowAll();

    const TimelineScale& Scale() const { return scale_; }
    const TimelineContent& Content() const { return content_; }

    // The piece that is seen, in words; "" without a history.
    QString SeenText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    void EntryWanted(EntryNumber entry);
    void SpanSelected(EntryNumber first,
                      EntryNumber end); // to before `end`; none lies there when they are equal
    void SeenChanged();

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    bool HasStrip() const;
    void PaintAnew();
    void MakeLanes();
    void Seen();
    int PixelOn(const QPointF& position) const;
    Timeline::Place PlaceOn(const QPointF& position) const;
    Timeline::Place Bounded(Timeline::Place place) const;
    QString TextAt(const QPoint& position) const;
    int CursorPixel() const;
    Timeline::Place CursorPlace() const;
    void MoveCursor(int pixels, bool selects);
    void MoveCursorTo(Timeline::Place place, bool selects);
    void GoTo(Timeline::Place place);
    void OrderSpan();

    Language language_;
    TimelineContent content_;
    TimelineScale scale_;
    TimelineLanes lanes_;
    QPixmap picture_;                              // of what does not follow the list; null = to be painted
    std::optional<int> dragged_;                   // the pixel that a drag has reached
    std::optional<Timeline::Place> selectedSince_; // where the selecting of a span began
};
