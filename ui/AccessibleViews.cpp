#include "ui/AccessibleViews.h"

#include "ui/AreaBar.h"
#include "ui/RadioMatrix.h"
#include "ui/SetupStepsView.h"

#include <QAccessibleWidget>

namespace zelto {
namespace {

class AccessibleSteps : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleSteps(SetupStepsView& steps)
        : QAccessibleWidget(&steps, QAccessible::ProgressBar), m_steps(steps) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    // Counted as in its description, from 1.
    QVariant currentValue() const override { return m_steps.currentStep() + 1; }
    void setCurrentValue(const QVariant& /*value*/) override {}
    QVariant minimumValue() const override { return SetupStepsView::SettingsSent + 1; }
    QVariant maximumValue() const override { return SetupStepsView::AllDone + 1; }
    QVariant minimumStepSize() const override { return 1; }

private:
    const SetupStepsView& m_steps;
};

QAccessibleInterface* createView(const QString& /*className*/, QObject* object) {
    if (auto* const steps = qobject_cast<SetupStepsView*>(object)) {
        return new AccessibleSteps(*steps);
    }
    if (auto* const bar = qobject_cast<AreaBar*>(object)) {
        return new QAccessibleWidget(bar, QAccessible::Chart);
    }
    if (auto* const matrix = qobject_cast<RadioMatrix*>(object)) {
        return new QAccessibleWidget(matrix, QAccessible::Grouping);
    }
    return nullptr;
}

} // namespace

void installAccessibleViews() {
    // The toolkit takes a factory once, however often it is offered.
    QAccessible::installFactory(createView);
}

} // namespace zelto
