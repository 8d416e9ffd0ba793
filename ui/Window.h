#pragma once

#include "ui/ReturnKey.h"

#include <QDialog>

#include <functional>

namespace zelto {

class FittingArea;

/// A window of the utility. The controller shows and hides it; the user's own ways of closing it
/// (Escape, the title bar) do what its cancel button does. The focus starts in the first field
/// that takes input, or in the control that the form's property "startsOn" names.
class Window : public QDialog {
    Q_OBJECT

public:
    /// How a modal run ended. Only OK keeps what the dialog holds.
    enum ModalCode { ModalOK = 0, ModalCancel = 1 };

    Window();

    /// Makes the window as large as its contents ask for, within `available`. Where that is too
    /// little they scroll, and the buttons below them stay.
    void resizeToFit(const QSize& available);

    /// Centres the window on its screen, shows it, brings it to the front and gives it the focus.
    void centreAndMakeKeyAndOrderFront();
    /// Takes the window off the screen; closeRequested is not emitted.
    void orderOut();

    /// As orderOut(), but not before `showNext` has shown the window that follows, so that the
    /// desktop's other windows don't flash up between. If that is this window again, it stays.
    void giveWayTo(const std::function<void()>& showNext);
    /// On the screen, and not only until the next window is.
    [[nodiscard]] bool isInUse() const { return isVisible() && !m_givesWay; }

    /// Runs the window as an application-modal dialog over `parent` and returns its code, a
    /// ModalCode. Blocks until the dialog has ended; the window is off the screen then. A run that
    /// ends because the application does is a cancel.
    [[nodiscard]] int runModal(QWidget* parent);
    /// Ends a modal run.
    void stopModal(ModalCode code);

    /// Escape and the title bar.
    void reject() override;

Q_SIGNALS:
    /// The user wants the window closed without using one of its buttons.
    void closeRequested();

protected:
    /// Once the form's layout is there: lets its contents scroll where they have to.
    void makeContentsFit();

    bool event(QEvent* event) override;

private:
    [[nodiscard]] QSize roomOnScreen() const;
    [[nodiscard]] QSize roomForContents(int width) const;
    void growToFit();
    void focusWhereTheUserStarts();

    FittingArea* m_contents = nullptr;
    /// What there was for the window as it opened.
    QSize m_available;
    bool m_givesWay = false;
    bool m_modalRun = false;
    ModalCode m_modalCode = ModalCancel;
    ReturnKey m_returnKey{*this, ReturnKey::Presses::FocusedButton};
};

/// A Designer form as a window: its controls are reached under the names they have in the form.
template <typename Layout>
class Form : public Window, public Layout {
public:
    Form() {
        this->setupUi(this);
        makeContentsFit();
    }
};

} // namespace zelto
