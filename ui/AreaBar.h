#pragma once

#include <QString>
#include <QWidget>

#include <cstdint>
#include <vector>

namespace zelto {

/// The areas of a drive as one bar, each as wide as its share. An area too small to be seen in
/// proportion is still drawn, a little wider than its share. Below the bar each area's name and
/// size stand in full, in the same order, as near to their area as there is room.
class AreaBar : public QWidget {
    Q_OBJECT

public:
    enum class Kind { Normal, Secure, Tool, Free };
    /// Whether the areas fit into the drive; if not, the bar shows their sum and warns.
    enum class Fit { Fits, TooLarge };

    struct Segment {
        QString name;
        std::uint64_t mebibytes = 0;
        Kind kind = Kind::Normal;
    };

    explicit AreaBar(QWidget* parent = nullptr);

    /// Shows these areas, in this order. Segments of size 0 are left out.
    void setSegments(std::vector<Segment> segments, Fit fit = Fit::Fits);
    [[nodiscard]] const std::vector<Segment>& segments() const { return m_segments; }

    /// The segments' widths for a bar of `width` pixels: in proportion, none under `smallest` as
    /// long as there is room, in sum exactly `width` (none at all for no segments).
    [[nodiscard]] static std::vector<int> widthsOf(const std::vector<Segment>& segments, int width,
                                                   int smallest);

    /// Where captions of these widths begin in a row of `width` pixels: where their segments do,
    /// or as near to that as leaves room for all. Captions that have no room in sum share it.
    [[nodiscard]] static std::vector<int> captionsOf(const std::vector<int>& segments,
                                                     const std::vector<int>& captions, int width);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] std::vector<int> visibleWidths() const;
    [[nodiscard]] std::vector<int> captionWidths() const;
    [[nodiscard]] int barHeight() const;
    [[nodiscard]] int swatchSide() const;
    [[nodiscard]] int gap() const;
    [[nodiscard]] QRectF placed(int left, int width, int top, int height) const;
    void paintBar(QPainter& painter) const;
    void paintSegment(QPainter& painter, const Segment& segment, const QRectF& box) const;
    void paintFill(QPainter& painter, Kind kind, const QRectF& box) const;
    void paintCaption(QPainter& painter, const Segment& segment, const QRectF& box) const;

    std::vector<Segment> m_segments;
    Fit m_fit = Fit::Fits;
};

} // namespace zelto
