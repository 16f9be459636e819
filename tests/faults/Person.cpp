// SPDX-License-Identifier: MIT
// A person at the real program: a plugin that any program of this toolkit loads when the environment names it
// (QT_QPA_GENERIC_PLUGINS=person). Orders come line by line on standard input, each a JSON object; each is
// answered with one line on standard output when it has been given, and carried out when the program comes to
// it. It knows the windows by the names of their controls only.
//
//     {"do": "see"}                            what is on the screen
//     {"do": "trigger", "name": ...}           an item of the menus
//     {"do": "select", "row": ...}             a row of the logbook list
//     {"do": "open entry"}                     Enter on the list
//     {"do": "type", "name": ..., "text": ...} into a field of the front window
//     {"do": "press", "name": ...}             a button of the front window; of a message, what stands on it
//     {"do": "choose file", "text": ...}       in the file dialog
//     {"do": "close"}                          the program's window
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QGenericPlugin>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSocketNotifier>
#include <QTableView>
#include <QTimer>

#include <cstdio>

#include <unistd.h>

class Person : public QObject {
    Q_OBJECT

  public:
    Person() : notifier_(STDIN_FILENO, QSocketNotifier::Read) {
        connect(&notifier_, &QSocketNotifier::activated, this, &Person::Listen);
    }

  private:
    void Listen() {
        char part[4096];
        const ssize_t size = read(STDIN_FILENO, part, sizeof part);
        if (size <= 0) {
            notifier_.setEnabled(false);
            return;
        }
        heard_.append(part, size);
        for (qsizetype end = heard_.indexOf('\n'); end >= 0; end = heard_.indexOf('\n')) {
            const QJsonObject order = QJsonDocument::fromJson(heard_.left(end)).object();
            heard_.remove(0, end + 1);
            // A dialog that is closing has then come to its end, and what follows it with it.
            Later(this, [this, order] { Later(this, [order] { Answer(Obey(order)); }); });
        }
    }

    static void Answer(const QJsonObject& object) {
        const QByteArray answer = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
        std::fwrite(answer.constData(), 1, static_cast<std::size_t>(answer.size()), stdout);
        std::fflush(stdout);
    }

    static QMainWindow* Window() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* const window = qobject_cast<QMainWindow*>(widget); window && window->isVisible())
                return window;
        return nullptr;
    }

    // Later: an order may open a dialog, whose end the answer must not wait for.
    static void Later(QObject* object, const std::function<void()>& order) {
        QTimer::singleShot(0, object, order);
    }

    static QJsonObject Obey(const QJsonObject& order) {
        const QString what = order["do"].toString();
        const QString name = order["name"].toString();
        const QString text = order["text"].toString();
        QMainWindow* const window = Window();
        QWidget* const front = QApplication::activeModalWidget();
        if (what == "see")
            return Sight(window, front);
        auto* const list = window ? window->findChild<QTableView*>("lvLogbook") : nullptr;
        bool obeyed = true;
        if (auto* const action = window && what == "trigger" ? window->findChild<QAction*>(name) : nullptr)
            Later(action, [action] { action->trigger(); });
        else if (list && what == "select")
            list->selectRow(order["row"].toInt());
        else if (list && what == "open entry")
            QCoreApplication::postEvent(list, new QKeyEvent(QEvent::KeyPress, Qt::Key_Return, {}, "\r"));
        else if (auto* const field =
                     front && what == "type" ? front->findChild<QPlainTextEdit*>(name) : nullptr)
            field->setPlainText(text);
        else if (auto* const button = front && what == "press" ? Button(front, name) : nullptr)
            Later(button, [button] { button->click(); });
        else if (auto* const dialog = what == "choose file" ? qobject_cast<QFileDialog*>(front) : nullptr) {
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(text);
            Later(dialog, [dialog] { QMetaObject::invokeMethod(dialog, "accept"); });
        } else if (window && what == "close")
            Later(window, [window] { window->close(); });
        else
            obeyed = false;
        return {{"obeyed", obeyed}};
    }

    static QAbstractButton* Button(QWidget* front, const QString& name) {
        for (QAbstractButton* button : front->findChildren<QAbstractButton*>())
            if (button->objectName() == name || button->text().remove('&') == name)
                return button;
        return nullptr;
    }

    static QJsonObject Sight(QMainWindow* window, QWidget* front) {
        QJsonObject sight;
        if (window == nullptr)
            return sight;
        const auto label = [&](const char* name) {
            const auto* const found = window->findChild<QLabel*>(name);
            return found ? found->text() : QString();
        };
        sight["title"] = window->windowTitle();
        sight["status"] = label("statusText");
        sight["counts"] = label("statusCounts");
        sight["progress"] = window->findChild<QProgressBar*>("ProgressBar")->isVisible();
        sight["cells"] = Cells(window->findChild<QTableView*>("lvLogbook"));
        sight["front"] = front == nullptr ? "" : front->metaObject()->className();
        if (const auto* const box = qobject_cast<QMessageBox*>(front))
            sight["text"] = box->text();
        return sight;
    }

    static QJsonArray Cells(const QTableView* list) {
        constexpr int MostRows = 20;
        QJsonArray rows;
        for (int row = 0; row < qMin(list->model()->rowCount(), MostRows); ++row) {
            QJsonArray cells;
            for (int column = 0; column < list->model()->columnCount(); ++column)
                cells.append(list->model()->index(row, column).data().toString());
            rows.append(cells);
        }
        return rows;
    }

    QSocketNotifier notifier_;
    QByteArray heard_;
};

class PersonPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "person.json")

  public:
    QObject* create(const QString&, const QString&) override { return new Person; }
};

#include "Person.moc"
