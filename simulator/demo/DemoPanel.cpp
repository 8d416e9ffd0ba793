#include "simulator/demo/DemoPanel.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zelto::simulator {

DemoPanel::DemoPanel(DemoWorld& world) : m_world(world) {
    setWindowTitle(QStringLiteral("Virtual computer"));
    auto* const layout = new QVBoxLayout(this);
    m_description = new QLabel;
    m_description->setTextFormat(Qt::PlainText);
    layout->addWidget(m_description);
    layout->addWidget(new QLabel(QStringLiteral("First password: %1\nSecond password: %2")
                                     .arg(QLatin1String(DemoWorld::FirstPassword),
                                          QLatin1String(DemoWorld::SecondPassword))));
    auto* const grid = new QGridLayout;
    layout->addLayout(grid);
    addButtons(*grid);
    auto* const busy = new QCheckBox(QStringLiteral("A program keeps the &volumes busy"));
    QObject::connect(busy, &QCheckBox::toggled, this,
                     [this](bool on) { m_world.setVolumesBusy(on); });
    layout->addWidget(busy);
    m_start = new QPushButton(QStringLiteral("&Start the utility"));
    QObject::connect(m_start, &QPushButton::clicked, this, [this] { m_world.startUtility(); });
    layout->addWidget(m_start);
    m_world.setListener([this] { refresh(); });
    refresh();
}

QPushButton* DemoPanel::addButton(QGridLayout& grid, int row, int column, const char* text,
                                  std::function<void()> action) {
    auto* const button = new QPushButton(QLatin1String(text));
    QObject::connect(button, &QPushButton::clicked, this, [this, run = std::move(action)] {
        run();
        refresh();
    });
    grid.addWidget(button, row, column);
    return button;
}

void DemoPanel::addButtons(QGridLayout& grid) {
    m_plug = addButton(grid, 0, 0, "&Plug", [this] { m_world.plug(); });
    m_unplug = addButton(grid, 0, 1, "&Unplug", [this] { m_world.unplug(); });
    addButton(grid, 0, 2, "&Replug", [this] { m_world.replug(); });
    addButton(grid, 1, 0, "&New drive", [this] { m_world.takeNewDrive(); });
    addButton(grid, 1, 1, "Drive with passwor&ds", [this] { m_world.takePreparedDrive(); });
    addButton(grid, 1, 2, "&Lose its clock", [this] { m_world.loseClock(); });
    addButton(grid, 2, 0, "One &hour later", [this] { m_world.skip(std::chrono::hours(1)); });
    addButton(grid, 2, 1, "One da&y later", [this] { m_world.skip(std::chrono::days(1)); });
    const auto addTyping = [&](int column, const char* text, const char* password) {
        addButton(grid, 3, column, text, [this, password] { m_world.typePassword(password); });
    };
    addTyping(0, "Type the &first password", DemoWorld::FirstPassword);
    addTyping(1, "Type the s&econd password", DemoWorld::SecondPassword);
    addTyping(2, "Type a &wrong password", "wrong");
}

void DemoPanel::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    QApplication::quit();
}

void DemoPanel::refresh() {
    m_description->setText(m_world.describe());
    m_start->setEnabled(!m_world.utilityRuns());
    m_plug->setEnabled(!m_world.isPlugged());
    m_unplug->setEnabled(m_world.isPlugged());
}

} // namespace zelto::simulator
