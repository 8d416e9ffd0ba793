#pragma once

#include <QColor>
#include <QWidget>

namespace zelto {

/// The steps of first-time set-up, one line each: done, under way, still to come, failed.
class SetupStepsView : public QWidget {
    Q_OBJECT

public:
    /// Their values are the set-up's own step numbers.
    enum Step {
        SettingsSent = 0,
        DriveReconnects = 1,
        VolumeAppears = 2,
        FormatAndCopy = 3,
        AllDone = 4
    };
    enum class State { Done, UnderWay, ToCome, Failed };

    explicit SetupStepsView(QWidget* parent = nullptr);

    /// The step that is under way; all before it are done. AllDone: all are done. Forgets a
    /// failure. Numbers out of range are taken for the nearest step.
    void setCurrentStep(int step);
    /// The step under way could not be completed.
    void setFailed();

    [[nodiscard]] int currentStep() const { return m_current; }
    [[nodiscard]] State stateOf(int step) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int lineHeight() const;
    [[nodiscard]] QColor colourToCome() const;
    void paintMark(QPainter& painter, State state, const QRectF& box) const;
    void describe();

    int m_current = SettingsSent;
    bool m_failed = false;
};

} // namespace zelto
