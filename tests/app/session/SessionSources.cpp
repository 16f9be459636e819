// SPDX-License-Identifier: MIT
// Opening, saving and reading again.
#include "app/session/RandomSession.h"

#include <QDropEvent>
#include <QMimeData>
#include <QToolBar>

namespace {

constexpr qsizetype MostArchives = 5;
constexpr int NarrowWindow = 600; // grows with the texts of its status bar
constexpr const char* AskSave[] = {"Comments edited. Save into logbook archive?",
                                   "Sie haben Kommentare bearbeitet. In Logbuch-Archiv speichern?"};
constexpr const char* AskRestore[] = {
    "Comments on this logbook were not saved the last time. Restore them?",
    "Kommentare zu diesem Logbuch wurden beim letzten Mal nicht gespeichert. Wiederherstellen?"};
constexpr const char* AskFilters[] = {"Replace active filter list?", "Aktuelle Filterliste ersetzen?"};

} // namespace

RandomSession::Source& RandomSession::AnySource() {
    QList<Source>& sources = !archives_.empty() && Chance(2) ? archives_ : logbooks_;
    return sources[Below(static_cast<int>(sources.size()))];
}

// What comes when a logbook with edited comments is left.
RandomSession::Leave RandomSession::PlanLeaving(bool closing) {
    if (!Model.CommentsEdited)
        return Leave::Go;
    static constexpr QMessageBox::StandardButton Buttons[] = {QMessageBox::Yes, QMessageBox::No,
                                                              QMessageBox::Cancel};
    const QMessageBox::StandardButton answer = dice_.Pick(Buttons);
    Say(answer == QMessageBox::Yes  ? "saves the comments"
        : answer == QMessageBox::No ? "drops the comments"
                                    : "stays");
    Answers.ExpectMessage(Localised(AskSave[0], AskSave[1]), answer);
    if (answer == QMessageBox::Yes) {
        const bool saved = PlanArchive();
        // The window closes all the same, and the comments come back with the logbook.
        if (!saved && closing)
            LoseComments();
        return saved || closing ? Leave::Go : Leave::Stay;
    }
    return answer == QMessageBox::No ? Leave::Go : Leave::Stay;
}

// What was noted stays, and what was held is free again.
void RandomSession::LoseComments() {
    for (Lost& lost : lost_)
        lost.Held = lost.Restored = false;
    if (!Model.Noted.empty())
        lost_.push_back({Model.BareEntries(), Model.Noted});
}

// What comes when comments would be lost with the archive that is replaced; false when it stays.
bool RandomSession::PlanReplacing(const Source& old) {
    SessionEntries oldEntries = old.Entries;
    for (SessionEntry& entry : oldEntries)
        entry.Comment.clear();
    const bool isSame = oldEntries == Model.BareEntries();
    std::map<int, QString> comments;
    bool anyDiffers = false;
    for (int i = 0; i < old.Entries.size(); ++i) {
        const QString& comment = old.Entries[i].Comment;
        const bool isHere = i < Model.Entries.size() && Model.Entries[i].Comment == comment;
        if (comment.isEmpty() || isHere)
            continue;
        anyDiffers = true;
        if (!isSame || !Model.Changed.contains(i))
            comments[i] = comment;
    }
    if (!anyDiffers || comments.empty())
        return true;
    enum class Fate { Keep, Replace, Cancel };
    static constexpr Fate Fates[] = {Fate::Keep, Fate::Replace, Fate::Cancel};
    Fate fate = dice_.Pick(Fates);
    if (!isSame && fate == Fate::Keep)
        fate = Fate::Replace;
    Say(fate == Fate::Keep ? "keeps archived comments" : fate == Fate::Replace ? "replaces them" : "cancels");
    const QString number = QString::number(comments.size());
    const QString text =
        isSame ? Localised("Comments in the archive that the list does not have, or has otherwise: ",
                           "Kommentare im Archiv, die in der Liste fehlen oder dort anders lauten: ") +
                     number + "\r\n\r\n" +
                     Localised("Keep them too? If they are replaced, they are lost.",
                               "Sollen sie auch erhalten bleiben? Werden sie ersetzt, sind sie verloren.")
               : Localised(
                     "Comments in the archive on another logbook, or on another state of this one: ",
                     "Kommentare im Archiv zu einem anderen Logbuch oder einem anderen Stand von diesem: ") +
                     number + "\r\n\r\n" +
                     Localised("They cannot be kept with this logbook. Replace the archive?",
                               "Mit diesem Logbuch können sie nicht erhalten bleiben. Das Archiv ersetzen?");
    const QString button = fate == Fate::Keep      ? Localised("Keep them too", "Auch behalten")
                           : fate == Fate::Replace ? Localised("Replace", "Ersetzen")
                                                   : Localised("Cancel", "Abbrechen");
    Answers.Expect("QMessageBox", [=, this](QWidget& dialog) {
        auto& box = static_cast<QMessageBox&>(dialog);
        if (box.text() != text)
            Answers.Blame("question \"" + box.text() + "\" instead of \"" + text + '"');
        for (QAbstractButton* const each : box.buttons())
            if (each->text().remove('&') == button)
                return each->click();
        Answers.Blame("question without the button " + button);
        box.reject();
    });
    if (fate == Fate::Keep) {
        for (const auto& [entry, comment] : comments) {
            QString& own = Model.Entries[entry].Comment;
            own = own.isEmpty() ? comment : own + " | " + comment;
        }
        Model.ShowContent();
    }
    return fate != Fate::Cancel;
}

// What comes when an archive is saved; false when it is not saved after all.
bool RandomSession::PlanArchive() {
    const QString title = Localised("Save Archive", "Archiv speichern");
    if (Chance(4)) {
        Say("cancels the archive");
        Answers.ExpectFileDialog(title, "");
        return false;
    }
    const bool replaces = !archives_.empty() && Chance(3);
    Source archive = shown_;
    archive.File = replaces ? archives_.back().File : QString("Archiv-%1.qorvix").arg(++archivesMade_);
    archive.Name = archive.File.section('.', 0, 0);
    archive.Filters.clear();
    for (const SessionFilter& filter : Model.Filters())
        archive.Filters << TextForm(filter);
    archive.IsArchive = true;
    Say("archive " + archive.File);
    Answers.ExpectFileDialog(title, PathOf(archive.File));
    Model.ShowStatus();
    if (replaces) {
        Answers.Expect("QMessageBox", [](QWidget& box) {
            static_cast<QMessageBox&>(box).button(QMessageBox::Yes)->click();
        });
        if (!PlanReplacing(archives_.back()))
            return false;
        archives_.pop_back();
    }
    archive.Entries = Model.Entries;
    archives_.push_back(std::move(archive));
    if (archives_.size() > MostArchives)
        archives_.erase(archives_.begin());
    Model.CommentsEdited = false;
    Model.Noted.clear();
    Model.Changed.clear();
    lost_.removeIf([](const Lost& lost) { return lost.Held; });
    return true;
}

void RandomSession::Archive() {
    Say("saves an archive");
    PlanArchive();
    if (Chance(2))
        Item("mnuFileZipLogbook")->trigger();
    else
        Press(Qt::Key_S, Qt::ControlModifier);
}

// A source has been read. The filters of an archive take the place of the stored ones.
void RandomSession::Show(const Source& source, bool withFilters) {
    if (withFilters) {
        QStringList strings;
        for (const SessionString& string : StringsOf(Model.StoredStrings, Model.Language))
            strings << TextForm(string);
        Model.StoredFilters = source.Filters;
        Model.StoredStrings = strings;
    }
    LetLostGo();
    Model.Read(source.Entries, source.Name);
    shown_ = source;
    PlanRestoring();
    Model.LogbookIsOpen(withFilters);
}

// The logbook goes, and with it those comments that were restored and then not saved.
void RandomSession::LetLostGo() {
    lost_.removeIf([](const Lost& lost) { return lost.Restored; });
    for (Lost& lost : lost_)
        lost.Held = false;
}

// Comments of this logbook that were not saved when the window closed are offered, the later of an entry
// last. Nobody is asked about those that the logbook has.
void RandomSession::PlanRestoring() {
    static constexpr QMessageBox::StandardButton Buttons[] = {QMessageBox::Yes, QMessageBox::No,
                                                              QMessageBox::Cancel};
    const SessionEntries bare = Model.BareEntries();
    std::map<int, QString> comments;
    for (const Lost& lost : lost_)
        if (lost.Logbook == bare)
            for (const auto& [entry, comment] : lost.Comments)
                comments[entry] = comment;
    std::erase_if(comments, [&](const auto& comment) {
        return Model.Entries[comment.first].Comment == comment.second;
    });
    QMessageBox::StandardButton answer = QMessageBox::No;
    if (!comments.empty()) {
        answer = dice_.Pick(Buttons);
        Say(answer == QMessageBox::Yes  ? "restores comments"
            : answer == QMessageBox::No ? "gives lost comments up"
                                        : "leaves lost comments");
        Answers.ExpectMessage(Localised(AskRestore[0], AskRestore[1]), answer);
    }
    if (!comments.empty() && answer == QMessageBox::No)
        lost_.removeIf([&](const Lost& lost) { return lost.Logbook == bare; });
    for (Lost& lost : lost_)
        if (lost.Logbook == bare && (comments.empty() || answer == QMessageBox::Yes)) {
            lost.Held = true;
            lost.Restored = !comments.empty();
        }
    if (answer != QMessageBox::Yes)
        return;
    for (const auto& [entry, comment] : comments)
        Model.Entries[entry].Comment = comment;
    Model.CommentsEdited = true;
    Model.Noted = comments;
    for (const auto& [entry, comment] : comments)
        Model.Changed.insert(entry);
}

// Opens what was planned, and asks about the filters of an archive.
void RandomSession::PlanReading(const Source& source, QMessageBox::StandardButton replaceFilters) {
    Say(source.File);
    if (source.IsArchive) {
        Model.ShowStatus();
        Say(replaceFilters == QMessageBox::Yes  ? "with its filters"
            : replaceFilters == QMessageBox::No ? "without its filters"
                                                : "but cancels");
        Answers.ExpectMessage(Localised(AskFilters[0], AskFilters[1]), replaceFilters);
    }
    if (!source.IsArchive || replaceFilters != QMessageBox::Cancel)
        Show(Source(source), source.IsArchive && replaceFilters == QMessageBox::Yes);
}

void RandomSession::Open() {
    Say("opens");
    const bool goes = PlanLeaving() == Leave::Go;
    if (goes && Chance(4)) {
        Say("no file");
        Answers.ExpectFileDialog(Localised("Open", "Öffnen"), "");
    } else if (goes) {
        const Source& source = AnySource();
        Answers.ExpectFileDialog(Localised("Open", "Öffnen"), PathOf(source.File));
        PlanReading(source, Chance(2) ? QMessageBox::Yes : QMessageBox::No);
    }
    if (Chance(2))
        Item("mnuFileOpen")->trigger();
    else
        Press(Qt::Key_O, Qt::ControlModifier);
}

void RandomSession::OpenDropped() {
    static constexpr QMessageBox::StandardButton Buttons[] = {QMessageBox::Yes, QMessageBox::No,
                                                              QMessageBox::Cancel};
    Say("drops");
    const bool goes = PlanLeaving() == Leave::Go;
    const Source source = AnySource(); // perhaps the archive that was just saved
    if (goes)
        PlanReading(source, dice_.Pick(Buttons));
    Drop(PathOf(source.File));
}

void RandomSession::Drop(const QString& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    const QPoint place(20, 20);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(List()->viewport(), &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(List()->viewport(), &drop);
}

// The logbook file is read again, without comments.
void RandomSession::Refresh() {
    Say("refreshes");
    if (PlanLeaving() == Leave::Go) {
        const QString title = Model.Title;
        for (SessionEntry& entry : shown_.Entries)
            entry.Comment.clear();
        LetLostGo();
        Model.Read(shown_.Entries, "");
        Model.Title = title;
    }
    auto* const toolBar = Find<QToolBar>("tbToolBar");
    QWidget* const button = toolBar->widgetForAction(Item("Refresh"));
    if (button->isVisible() && Chance(2))
        QTest::mouseClick(button, Qt::LeftButton);
    else
        Press(Qt::Key_F5);
}

// The control writes the file anew.
void RandomSession::RewriteAndRefresh() {
    const auto source = std::find_if(logbooks_.begin(), logbooks_.end(),
                                     [&](const Source& logbook) { return logbook.File == shown_.File; });
    if (source != logbooks_.end() && !Model.CommentsEdited) {
        Say("the logbook is written anew");
        WriteLogbook(*source, static_cast<Generation>(Below(3)));
        shown_ = *source;
    }
    Refresh();
}

// Closes the window and starts the program again. Without the answer Cancel it closes in any case.
void RandomSession::Restart() {
    Say("closes");
    const bool goes = PlanLeaving(true) == Leave::Go;
    const QSize size = Window->size();
    const bool maximised = Window->isMaximized();
    const QList<int> widths = columnWidths_;
    if (Window->close() != goes)
        return Answers.Blame("the window does not close as it should");
    if (!goes)
        return;
    LetLostGo();
    contentStored_ = Model.ContentShown;
    Model.Restart();
    StartProgram();
    if (Window->isMaximized() != maximised ||
        (!maximised && size.width() > NarrowWindow && Window->size() != size))
        Answers.Blame(QString("the window is %1 x %2 instead of %3 x %4")
                          .arg(Window->width())
                          .arg(Window->height())
                          .arg(size.width())
                          .arg(size.height()));
    if (columnWidths_.first(6) != widths.first(6))
        Answers.Blame("the columns have other widths than before");
}

// The program ends without having been closed, and is started again. The window is as it was stored the last
// time.
void RandomSession::Crash() {
    Say("crashes");
    LoseComments();
    Model.ContentShown = contentStored_;
    Model.Restart();
    StartProgram();
}
