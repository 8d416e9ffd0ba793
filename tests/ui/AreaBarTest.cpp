#include "ui/AreaBar.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QImage>
#include <QToolTip>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <numeric>

namespace zelto::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Ge;
using ::testing::IsEmpty;
using Kind = AreaBar::Kind;
using Segments = std::vector<AreaBar::Segment>;

Segments sizes(std::initializer_list<std::uint64_t> mebibytes) {
    Segments segments;
    for (const std::uint64_t size : mebibytes) {
        segments.push_back({QStringLiteral("area"), size, Kind::Normal});
    }
    return segments;
}

int sum(const std::vector<int>& widths) {
    return std::accumulate(widths.begin(), widths.end(), 0);
}

TEST(AreaBarWidths, AreInProportion) {
    EXPECT_THAT(AreaBar::widthsOf(sizes({500, 250, 250}), 400, 0), ElementsAre(200, 100, 100));
}

TEST(AreaBarWidths, FillTheBarExactlyWhateverIsRounded) {
    for (int width = 3; width < 200; ++width) {
        EXPECT_EQ(sum(AreaBar::widthsOf(sizes({1, 1, 1}), width, 0)), width);
        EXPECT_EQ(sum(AreaBar::widthsOf(sizes({7, 100, 3}), width, 5)), width);
    }
}

TEST(AreaBarWidths, KeepATinyAreaVisibleBesideAHugeOne) {
    EXPECT_THAT(AreaBar::widthsOf(sizes({20, 2'000'000}), 300, 30), Each(Ge(30)));
}

TEST(AreaBarWidths, ShareEvenlyWhatIsTooNarrowForTheSmallest) {
    EXPECT_THAT(AreaBar::widthsOf(sizes({1, 1, 1, 1}), 40, 100), ElementsAre(10, 10, 10, 10));
}

TEST(AreaBarWidths, SurviveSizesWhoseSumOverflows) {
    constexpr std::uint64_t Largest = std::numeric_limits<std::uint64_t>::max();
    EXPECT_EQ(sum(AreaBar::widthsOf(sizes({Largest, Largest, 1}), 100, 4)), 100);
}

TEST(AreaBarWidths, NeedNoAreasAndNoRoom) {
    EXPECT_THAT(AreaBar::widthsOf({}, 100, 10), IsEmpty());
    EXPECT_THAT(AreaBar::widthsOf(sizes({1, 2}), 0, 10), ElementsAre(0, 0));
    EXPECT_THAT(AreaBar::widthsOf(sizes({1, 2}), -5, 10), ElementsAre(0, 0));
    EXPECT_EQ(sum(AreaBar::widthsOf(sizes({0, 0}), 100, 0)), 0);
}

TEST(AreaBarCaptions, BeginWhereTheirAreasDo) {
    EXPECT_THAT(AreaBar::captionsOf({200, 100, 100}, {50, 50, 50}, 400), ElementsAre(0, 200, 300));
}

TEST(AreaBarCaptions, MoveAsideForOthersWithoutLeavingTheRow) {
    EXPECT_THAT(AreaBar::captionsOf({10, 380, 10}, {80, 80, 80}, 400), ElementsAre(0, 80, 320));
    EXPECT_THAT(AreaBar::captionsOf({385, 5, 10}, {80, 80, 80}, 400), ElementsAre(0, 240, 320));
    EXPECT_THAT(AreaBar::captionsOf({1, 1, 1}, {1, 1, 1}, 3), ElementsAre(0, 1, 2));
}

TEST(AreaBarCaptions, ShareARowThatIsTooNarrow) {
    EXPECT_THAT(AreaBar::captionsOf({30, 30}, {80, 80}, 60), ElementsAre(0, 30));
    EXPECT_THAT(AreaBar::captionsOf({}, {}, 60), IsEmpty());
    EXPECT_THAT(AreaBar::captionsOf({0, 0}, {8, 8}, -3), ElementsAre(0, 0));
}

TEST(AreaBarTest, AsksForRoomForEveryNameAndSize) {
    AreaBar bar;
    bar.setSegments({{QStringLiteral("Disk1"), 500, Kind::Normal},
                     {QStringLiteral("Disk2"), 2'000'000, Kind::Secure},
                     {QStringLiteral("Disk3"), 20, Kind::Tool},
                     {QString(40, u'x'), 36, Kind::Free}});
    const QFontMetrics metrics = bar.fontMetrics();
    EXPECT_GT(bar.minimumSizeHint().width(), metrics.horizontalAdvance(QString(40, u'x')) +
                                                 3 * metrics.horizontalAdvance(u'0') * 6);
    EXPECT_GE(bar.sizeHint().width(), bar.minimumSizeHint().width());
}

TEST(AreaBarTest, TellsTheAreasToThoseWhoDoNotSeeThem) {
    AreaBar bar;
    bar.setSegments({{QStringLiteral("Disk1"), 500, Kind::Normal},
                     {QStringLiteral("Disk2"), 20480, Kind::Secure}});
    const QString told = bar.accessibleDescription();
    EXPECT_TRUE(told.contains(QStringLiteral("Disk1"))) << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral("500 MB"))) << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral("Disk2, secure area"))) << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral("20.0 GB"))) << told.toStdString();
}

TEST(AreaBarTest, TellsThatTheAreasAreTooLarge) {
    AreaBar bar;
    bar.setSegments(sizes({100}), AreaBar::Fit::TooLarge);
    const QString tooLarge = bar.accessibleDescription();
    bar.setSegments(sizes({100}));
    EXPECT_NE(bar.accessibleDescription(), tooLarge);
}

TEST(AreaBarTest, LeavesOutAreasOfNoSize) {
    AreaBar bar;
    bar.setSegments(sizes({100, 0, 50}));
    EXPECT_EQ(bar.segments().size(), 2U);
}

TEST(AreaBarTest, DrawsEveryKindAtEverySizeInBothDirections) {
    AreaBar bar;
    bar.setSegments({{QStringLiteral("Disk1"), 500, Kind::Normal},
                     {QStringLiteral("Disk2"), 400, Kind::Secure},
                     {QStringLiteral("Tool"), 20, Kind::Tool},
                     {QString(100'000, u'x'), 36, Kind::Free}});
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        bar.setLayoutDirection(direction);
        for (const int width : {1, 7, 40, 700}) {
            bar.resize(width, bar.sizeHint().height());
            EXPECT_FALSE(bar.grab().isNull());
        }
    }
}

TEST(AreaBarTest, DrawsASecureAreaUnlikeANormalOne) {
    AreaBar bar;
    bar.resize(bar.sizeHint());
    bar.setSegments({{QStringLiteral("Disk1"), 500, Kind::Normal}});
    const QImage normal = bar.grab().toImage();
    bar.setSegments({{QStringLiteral("Disk1"), 500, Kind::Secure}});
    EXPECT_NE(bar.grab().toImage(), normal);
}

TEST(AreaBarTest, ShowsTheAreaUnderThePointerInFull) {
    AreaBar bar;
    bar.setSegments({{QStringLiteral("left"), 500, Kind::Normal},
                     {QStringLiteral("right"), 500, Kind::Normal}});
    bar.resize(200, bar.sizeHint().height());
    bar.show();
    QHelpEvent overTheSecond(QEvent::ToolTip, {190, 5}, bar.mapToGlobal(QPoint(190, 5)));
    QCoreApplication::sendEvent(&bar, &overTheSecond);
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("right")));
}

} // namespace
} // namespace zelto::test
