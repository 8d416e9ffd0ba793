#pragma once

#include "simulator/demo/DemoWorld.h"

#include <QWidget>

class QGridLayout;
class QLabel;
class QPushButton;

namespace zelto::simulator {

/// What stands beside the utility's windows in the demo: the passwords, and the things that happen
/// to a drive in the world.
class DemoPanel : public QWidget {
public:
    explicit DemoPanel(DemoWorld& world);

protected:
    /// Closing it ends the demo.
    void closeEvent(QCloseEvent* event) override;

private:
    QPushButton* addButton(QGridLayout& grid, int row, int column, const char* text,
                           std::function<void()> action);
    void addButtons(QGridLayout& grid);
    void refresh();

    DemoWorld& m_world;
    QLabel* m_description = nullptr;
    QPushButton* m_start = nullptr;
    QPushButton* m_plug = nullptr;
    QPushButton* m_unplug = nullptr;
};

} // namespace zelto::simulator
