#pragma once

#include <QPointer>
#include <QString>

#include <memory>
#include <vector>

class QKeyEvent;
class QWidget;

namespace zelto {

/// Keeps what is typed while the windows are busy, instead of losing it: a person who mistyped a
/// password starts over at once, and letters that are lost then cost another try. The keys arrive
/// in their control, in order, from the run loop once this has gone; Return and Escape are not
/// kept, as what they would press was not there to be seen. At most one lives at a time.
class TypeAhead {
public:
    /// For one control, which gets the focus before the keys.
    explicit TypeAhead(QWidget& control);
    ~TypeAhead();
    TypeAhead(const TypeAhead&) = delete;
    TypeAhead& operator=(const TypeAhead&) = delete;

    /// Keeps a key press if a TypeAhead lives and the key is for text.
    static void offer(const QKeyEvent& press);

private:
    QPointer<QWidget> m_control;
    std::vector<std::unique_ptr<QKeyEvent>> m_presses;
};

} // namespace zelto
