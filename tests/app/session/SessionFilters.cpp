// SPDX-License-Identifier: MIT
#include "app/session/SessionFilters.h"

namespace {

// A part of a number list; nothing is in one that cannot be read.
struct Part {
    int First = 1;
    int Last = 0;

    bool Holds(int number) const { return First <= number && number <= Last; }
    bool IsReadable() const { return First <= Last; }
};

Part PartOf(const QString& text) {
    const qsizetype dash = text.indexOf('-');
    bool firstIsNumber = false;
    bool lastIsNumber = false;
    const int first = (dash < 0 ? text : text.left(dash)).trimmed().toInt(&firstIsNumber);
    const int last = (dash < 0 ? text : text.mid(dash + 1)).trimmed().toInt(&lastIsNumber);
    return firstIsNumber && lastIsNumber ? Part{first, last} : Part{};
}

QString TextOf(int first, int last) {
    return first == last ? QString::number(first) : QString("%1-%2").arg(first).arg(last);
}

bool ParseFilter(const QString& text, SessionFilter& filter) {
    const QStringList fields = text.split('|');
    if (fields.size() < 5 || fields.size() > 6 || !QStringList({"I", "X", "H"}).contains(fields[0]))
        return false;
    bool isNumber = false;
    filter = {
        fields[0].front().toLatin1(),          fields[1].toInt(&isNumber), fields[2], fields[3], fields[4],
        fields.size() == 5 || fields[5] == "1"};
    return isNumber;
}

} // namespace

QString TextForm(const SessionFilter& filter) {
    return QStringList({QString(QChar(filter.Action)), QString::number(filter.Type), filter.Text, filter.Name,
                        filter.Sender, filter.Active ? "1" : "0"})
        .join('|');
}

SessionFilters FiltersOf(const QStringList& stored, bool* asStored) {
    SessionFilters filters;
    for (const QString& text : stored) {
        SessionFilter filter;
        if (!ParseFilter(text, filter)) {
            filters.clear();
            break;
        }
        filters.push_back(filter);
    }
    if (asStored != nullptr)
        *asStored = !filters.empty();
    return filters.empty() ? SessionFilters(1) : filters;
}

bool Matches(const SessionFilter& filter, const SessionEntry& entry, int number) {
    if (filter.Type < 0 || filter.Type > 9)
        return false;
    if (filter.Type == 8)
        return NamesNumber(filter.Text, number);
    if (filter.Type != 0 && filter.Type != entry.Type)
        return false;
    const bool namesCount = filter.Type >= 1 && filter.Type <= 4;
    if (namesCount && !filter.Name.isEmpty() && filter.Name != entry.Name)
        return false;
    if (namesCount && !filter.Sender.isEmpty() && filter.Sender != entry.Sender)
        return false;
    return entry.Data.contains(filter.Text);
}

bool NamesNumber(const QString& list, int number) {
    for (const QString& part : list.split(','))
        if (PartOf(part).Holds(number))
            return true;
    return false;
}

QString WithNumber(const QString& list, int number) {
    if (list.isEmpty())
        return QString::number(number);
    if (NamesNumber(list, number))
        return list;
    QStringList parts = list.split(',');
    bool extended = false;
    for (const bool below : {true, false}) {
        QList<qsizetype> touching;
        Part widest{number, number};
        for (qsizetype i = 0; i < parts.size(); ++i) {
            const Part part = PartOf(parts[i]);
            if (!part.IsReadable() || (below ? part.Last != number - 1 : part.First - 1 != number))
                continue;
            touching << i;
            widest = {std::min(part.First, widest.First), std::max(part.Last, widest.Last)};
        }
        extended = extended || !touching.isEmpty();
        if (touching.size() > 2) // become one, at the end
            parts << TextOf(widest.First, widest.Last);
        for (auto i = touching.rbegin(); i != touching.rend(); ++i) {
            const Part part = PartOf(parts[*i]);
            parts[*i] = TextOf(std::min(part.First, number), std::max(part.Last, number));
            if (touching.size() > 2)
                parts.removeAt(*i);
        }
    }
    if (!extended)
        parts << QString::number(number);
    return parts.join(',');
}

QString WithoutNumber(const QString& list, int number) {
    QStringList parts;
    for (const QString& text : list.split(',')) {
        const Part part = PartOf(text);
        if (!part.Holds(number)) {
            parts << text;
            continue;
        }
        if (part.First < number)
            parts << TextOf(part.First, number - 1);
        if (number < part.Last)
            parts << TextOf(number + 1, part.Last);
    }
    return parts.join(',');
}

SessionStrings StringsOf(const QStringList& stored, int language) {
    SessionStrings strings;
    for (const QString& text : stored)
        strings.push_back({text.section('|', 0, 0), text.section('|', 1, 1)});
    if (!strings.isEmpty())
        strings.push_back({});
    for (const char* const key : {"N938", "N940"})
        if (stored.isEmpty())
            strings.push_back({key, QString(language == 1 ? "\"Taste ohne Funktion %1\"-Fehlermeldungen"
                                                          : "\"Key without function %1\"-Error")
                                        .arg(key)});
    return strings;
}

QString TextForm(const SessionString& string) { return string.Text + '|' + string.Comment + "|1"; }
