// SPDX-License-Identifier: MIT
#pragma once

#include "app/Commands.h"
#include "app/WindowPlacement.h"
#include "document/LogbookDocument.h"
#include "history/LogbookHistory.h"
#include "overview/TimelinePicture.h"
#include "rows/RowMatches.h"
#include "rows/SelectionFacts.h"
#include "settings/Language.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

class FilterOrders;
class LogbookView;
class Registry;
class WindowSearch;
class frmOverview;

// The overview beside the main window: it follows the list and the document while it is on the screen, and
// carries out its orders. While it is closed it does nothing; what it knows of a logbook stays until the next
// read.
class WindowOverview : public QObject {
    Q_OBJECT

  public:
    struct Parts {
        LogbookView& List;
        const LogbookDocument& Document;
        Registry& Settings;
        WindowSearch& Search;
        FilterOrders& Filters;
    };

    // `run` carries out the orders of the overview, as those of the main window. All must outlive this.
    using RunOrder = std::function<void(Command, const OrderSubject&)>;
    WindowOverview(const Parts& parts, RunOrder run, QWidget& window);

    void SetLanguage(Language language);

    // Forgets all that is known of the logbook: it will be read again or another one instead, or its error
    // texts have changed.
    void Forget();

    // Carries out a command; false when it is none of these.
    bool Run(Command command, const OrderSubject& subject);

  private:
    // What has changed since the overview was brought up to date.
    struct Changes {
        bool Rows = true;
        bool Selection = true;
        bool View = true;
    };

    void ConnectList();
    void ConnectOverview();
    void Show();
    void StorePlace();
    void FollowSoon();
    void Follow();
    bool DetermineHistory();
    void FollowRows();
    void FollowSelection();
    void FollowView();
    std::optional<TimelineSpan> ShownSpan() const;
    void GoToEntry(EntryNumber entry);
    void SelectSpan(EntrySpan span);
    void GoToOccurrence(const std::string& key, SearchDirection direction);

    // Each entry with a row of its own, in the order of the logbook, and the rows of the list among them.
    struct AllOccurrences {
        LogbookRows Entries;
        RowRanges Shown;
    };
    AllOccurrences OccurrencesOf(const std::string& key) const;
    void RemoveAll(const std::string& key);
    void HighlightAll(const std::string& key);

    Parts parts_;
    RunOrder run_;
    QWidget& window_;
    frmOverview* overview_ = nullptr; // made when it is wanted for the first time
    Language language_;
    WindowPlacement placement_;
    QTimer follow_;
    Changes changes_;
    std::unique_ptr<LogbookHistory> history_;
    EntrySet highlighted_; // entries that have a highlighted row
    std::optional<SelectionCounter> counter_;
};
