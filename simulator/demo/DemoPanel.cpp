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
    addDriveButtons(*grid);
    addTimeButtons(*grid);
    addPasswordButtons(*grid);
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

QPushButton* DemoPanel::addButton(QGridLayout& grid, int row, int column, const QString& text,
                                  std::function<void()> action) {
    auto* const button = new QPushButton(text);
    QObject::connect(button, &QPushButton::clicked, this, [this, run = std::move(action)] {
        run();
        refresh();
    });
    grid.addWidget(button, row, column);
    return button;
}

void DemoPanel::addDriveButtons(QGridLayout& grid) {
    m_plug = addButton(grid, 0, 0, QStringLiteral("&Plug"), [this] { m_world.plug(); });
    m_unplug = addButton(grid, 0, 1, QStringLiteral("&Unplug"), [this] { m_world.unplug(); });
    addButton(grid, 0, 2, QStringLiteral("&Replug"), [this] { m_world.replug(); });
    addButton(grid, 1, 0, QStringLiteral("&New drive"), [this] { m_world.takeNewDrive(); });
    addButton(grid, 1, 1, QStringLiteral("Drive with passwor&ds"),
              [this] { m_world.takePreparedDrive(); });
    addButton(grid, 1, 2, QStringLiteral("&Lose its clock"), [this] { m_world.loseClock(); });
}

void DemoPanel::addTimeButtons(QGridLayout& grid) {
    addButton(grid, 2, 0, QStringLiteral("One &hour later"),
              [this] { m_world.skip(std::chrono::hours(1)); });
    addButton(grid, 2, 1, QStringLiteral("One da&y later"),
              [this] { m_world.skip(std::chrono::days(1)); });
}

void DemoPanel::addPasswordButtons(QGridLayout& grid) {
    addButton(grid, 3, 0, QStringLiteral("Type the &first password"),
              [this] { m_world.typePassword(DemoWorld::FirstPassword); });
    addButton(grid, 3, 1, QStringLiteral("Type the s&econd password"),
              [this] { m_world.typePassword(DemoWorld::SecondPassword); });
    addButton(grid, 3, 2, QStringLiteral("Type a &wrong password"),
              [this] { m_world.typePassword("wrong"); });
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
