#include "ui/AlertPresenter.h"

#include "ui/FrontWindow.h"
#include "ui/ProductIcon.h"
#include "ui/ReturnKey.h"
#include "ui/Strings.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

namespace zelto {
namespace {

// A button's label is a text, not a mnemonic: an "&" in it is meant.
QPushButton* addButton(QMessageBox& box, QString label, QMessageBox::ButtonRole role) {
    QPushButton* button = box.addButton(label.replace(u'&', QStringLiteral("&&")), role);
    button->setAutoDefault(false);
    return button;
}

QMessageBox::Icon iconOf(AlertWeight weight) {
    switch (weight) {
    case AlertWeight::Information:
        return QMessageBox::Information;
    case AlertWeight::Warning:
        return QMessageBox::Warning;
    case AlertWeight::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

/// Who does not see the sign hears what it means.
QString nameOfIcon(AlertWeight weight) {
    switch (weight) {
    case AlertWeight::Information:
        return localized("IDS_ALERT_INFORMATION");
    case AlertWeight::Warning:
        return localized("IDS_ALERT_WARNING");
    case AlertWeight::Critical:
        return localized("IDS_ALERT_CRITICAL");
    }
    return {};
}

/// The window that the user looks at: while another program is active none of ours is, but the
/// alert still belongs to the one that is on the screen.
QWidget* windowToBelongTo() {
    QWidget* const active = QApplication::activeWindow();
    return active != nullptr ? active : frontWindow();
}

/// The box is never wider than some 500 pixels for texts that can be wrapped, however long they
/// are: on a low screen, or with large letters, its buttons would be below the screen's edge.
void widenWhereTooTall(const QMessageBox& box) {
    const QFontMetrics metrics = box.fontMetrics();
    const QSize room = box.screen()->availableGeometry().size();
    constexpr int UsualWidth = 500;
    constexpr int IconAndMargins = 140;
    int lines = 0;
    for (const QString& text : {box.text(), box.informativeText()}) {
        const QRect column(0, 0, UsualWidth - IconAndMargins, QWIDGETSIZE_MAX);
        lines += metrics.boundingRect(column, Qt::TextWordWrap, text).height();
    }
    const int buttonsAndTitle = 8 * metrics.lineSpacing();
    auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (label != nullptr && lines + buttonsAndTitle > room.height()) {
        label->setWordWrap(true);
        label->setMinimumWidth(room.width() - IconAndMargins);
    }
}

} // namespace

AlertButton AlertPresenter::NSRunAlertPanel(const AlertPanel& panel) {
    QMessageBox box(windowToBelongTo());
    box.setObjectName(QStringLiteral("AlertPanel"));
    box.setWindowIcon(ProductIcon::icon());
    box.setIcon(iconOf(panel.weight));
    box.setWindowTitle(panel.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(panel.message);
    box.setInformativeText(panel.detail);
    // Both texts name what came from outside, files and programs; the box takes the format for its
    // first text alone.
    for (QLabel* label : box.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
        if (!label->pixmap().isNull()) {
            label->setAccessibleName(nameOfIcon(panel.weight));
        }
    }

    QPushButton* const first = addButton(box, panel.defaultButton, QMessageBox::AcceptRole);
    QPushButton* second = nullptr;
    if (!panel.alternateButton.isEmpty()) {
        second = addButton(box, panel.alternateButton, QMessageBox::RejectRole);
    }
    // Read after both texts, in the order in which they stand.
    box.findChild<QDialogButtonBox*>()->raise();
    const bool escapeIsSecond = second != nullptr && panel.onEscape == AlertButton::Alternate;
    box.setDefaultButton(first);
    box.setEscapeButton(escapeIsSecond ? second : first);
    // A confirmation is cancelled by Return, whatever has the focus.
    const bool confirms = second != nullptr && !escapeIsSecond;
    ReturnKey returnKey(box, confirms ? ReturnKey::Presses::DefaultButton
                                      : ReturnKey::Presses::FocusedButton);
    returnKey.watchControls();
    widenWhereTooTall(box);
    box.exec();
    return second != nullptr && box.clickedButton() == second ? AlertButton::Alternate
                                                              : AlertButton::Default;
}

} // namespace zelto
