#include "ui/AlertPresenter.h"

#include "ui/ProductIcon.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>

namespace zelto {
namespace {

// A button's label is a text, not a mnemonic: an "&" in it is meant.
QPushButton* addButton(QMessageBox& box, QString label, QMessageBox::ButtonRole role) {
    QPushButton* button = box.addButton(label.replace(u'&', QStringLiteral("&&")), role);
    button->setAutoDefault(false);
    return button;
}

} // namespace

AlertButton AlertPresenter::NSRunAlertPanel(const AlertPanel& panel) {
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("AlertPanel"));
    box.setWindowIcon(ProductIcon::icon());
    // A question whose harmless answer is preset warns of what the other one does.
    const bool warns = !panel.alternateButton.isEmpty() && panel.onEscape == AlertButton::Default;
    if (warns) {
        box.setIcon(QMessageBox::Warning);
    } else {
        const int side = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
        box.setIconPixmap(ProductIcon::icon().pixmap({side, side}, box.devicePixelRatioF()));
    }
    box.setWindowTitle(panel.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(panel.message);
    box.setInformativeText(panel.detail);

    QPushButton* const first = addButton(box, panel.defaultButton, QMessageBox::AcceptRole);
    QPushButton* second = nullptr;
    if (!panel.alternateButton.isEmpty()) {
        second = addButton(box, panel.alternateButton, QMessageBox::RejectRole);
    }
    const bool escapeIsSecond = second != nullptr && panel.onEscape == AlertButton::Alternate;
    box.setDefaultButton(first);
    box.setEscapeButton(escapeIsSecond ? second : first);
    box.exec();
    return second != nullptr && box.clickedButton() == second ? AlertButton::Alternate
                                                              : AlertButton::Default;
}

} // namespace zelto
