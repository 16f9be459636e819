// SPDX-License-Identifier: MIT
#include "app/CountsLabel.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class SpokenCounts : public QAccessibleWidget {
  public:
    explicit SpokenCounts(CountsLabel* label) : QAccessibleWidget(label, QAccessible::StaticText) {}

    QString text(QAccessible::Text kind) const override {
        const auto* const label = static_cast<const CountsLabel*>(widget());
        return kind == QAccessible::Name          ? label->text()
               : kind == QAccessible::Description ? label->Explanation()
                                                  : QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* MakeSpokenCounts(const QString&, QObject* object) {
    auto* const label = qobject_cast<CountsLabel*>(object);
    return label == nullptr ? nullptr : new SpokenCounts(label);
}

} // namespace

CountsLabel::CountsLabel(QWidget* parent) : ElidedLabel(1, parent) {
    static const bool installed = [] {
        QAccessible::installFactory(MakeSpokenCounts);
        return true;
    }();
    static_cast<void>(installed);
}

void CountsLabel::ExplanationChanged() {
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}
