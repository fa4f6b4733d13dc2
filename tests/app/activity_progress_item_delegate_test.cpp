// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <memory>

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QtTest>

#include "app/activity_progress_item_delegate.h"
#include "app/running_activities_model.h"

namespace {

/// Records the progress bars it is asked to draw, and draws none.
class RecordingStyle : public QProxyStyle {
public:
    RecordingStyle()
        : QProxyStyle(QStringLiteral("fusion")) {}

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
        if (element == CE_ProgressBar && bar) {
            bars.push_back(*bar);
            pens.push_back(painter->pen().color());
            hasObject = option->styleObject != nullptr;
            // As a style does that animates the bar of each object.
            animation = std::make_unique<QObject>(option->styleObject).release();
        } else if (element == CE_ItemViewItem) {
            ++items;
        } else {
            QProxyStyle::drawControl(element, option, painter, widget);
        }
    }

    mutable std::vector<QStyleOptionProgressBar> bars;
    mutable std::vector<QColor> pens;
    mutable bool hasObject = false;
    mutable QPointer<QObject> animation;
    mutable int items = 0;
};

hessiancln::running_activity_info moving(std::int32_t done, std::int32_t left) {
    hessiancln::running_activity_info info;
    info.files_processed = done;
    info.files_left = left;
    return info;
}

} // namespace

class ActivityProgressItemDelegateTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        style_ = new RecordingStyle;
        QApplication::setStyle(style_); // takes ownership
    }
    void init() {
        style_->bars.clear();
        style_->pens.clear();
        style_->items = 0;
    }

    void aKnownProgressIsABar();
    void anUnknownProgressIsText();
    void noAnimationOfTheBarRemains();
    void theBarKeepsAMarginThatLeavesRoomForItsText();
    void aSelectedCellIsHighlighted_data();
    void aSelectedCellIsHighlighted();

private:
    QImage paint(const hessiancln::running_activity_info& info, QRect cell,
                 QStyle::State state = QStyle::State_Enabled) {
        RunningActivitiesModel model;
        model.setActivities({info});
        const CActivityProgressItemDelegate delegate(model);
        QStyleOptionViewItem option;
        option.rect = cell;
        option.state = state;
        option.palette = palette();
        QImage image(400, 60, QImage::Format_ARGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setPen(Qt::magenta);
        delegate.paint(&painter, option, model.index(0, RunningActivitiesModel::progress));
        penIsRestored_ = painter.pen().color() == Qt::magenta;
        return image;
    }
    static QPalette palette() {
        QPalette palette;
        palette.setColor(QPalette::Active, QPalette::Highlight, Qt::blue);
        palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::gray);
        palette.setColor(QPalette::Active, QPalette::HighlightedText, Qt::yellow);
        palette.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::cyan);
        palette.setColor(QPalette::Inactive, QPalette::Text, Qt::green);
        return palette;
    }

    RecordingStyle* style_ = nullptr;
    bool penIsRestored_ = false;
};

void ActivityProgressItemDelegateTest::aKnownProgressIsABar() {
    paint(moving(2, 1), {0, 0, 320, 40});
    QCOMPARE(style_->items, 0);
    QCOMPARE(style_->bars.size(), std::size_t{1});
    const QStyleOptionProgressBar& bar = style_->bars.front();
    QCOMPARE(bar.minimum, 0);
    QCOMPARE(bar.maximum, 1000);
    QCOMPARE(bar.progress, 666);
    QCOMPARE(bar.text, QStringLiteral("2 files"));
    QVERIFY(bar.textVisible);
    QVERIFY(bar.state.testFlag(QStyle::State_Enabled));
    QCOMPARE(style_->pens.front(), QColor(Qt::green));
    QVERIFY(penIsRestored_);
}

void ActivityProgressItemDelegateTest::noAnimationOfTheBarRemains() {
    paint(moving(2, 1), {0, 0, 320, 40});
    QVERIFY(style_->hasObject);
    QVERIFY(!style_->animation);
}

void ActivityProgressItemDelegateTest::anUnknownProgressIsText() {
    paint(moving(2, 0), {0, 0, 320, 40});
    paint(moving(0, 2), {0, 0, 320, 40});
    QVERIFY(style_->bars.empty());
    QCOMPARE(style_->items, 2);
}

void ActivityProgressItemDelegateTest::theBarKeepsAMarginThatLeavesRoomForItsText() {
    const auto barIn = [&](QRect cell) {
        paint(moving(1, 1), cell);
        return style_->bars.back().rect;
    };
    const QFontMetrics metrics{QStyleOptionViewItem().fontMetrics};
    const QRect text = metrics.boundingRect(QStringLiteral("1 files"));
    QCOMPARE(barIn({10, 5, 300, 50}), QRect(15, 10, 290, 40));
    QCOMPARE(barIn({0, 0, 300, text.height() + 4}), QRect(2, 2, 296, text.height()));
    QCOMPARE(barIn({0, 0, text.width() + 2, 50}), QRect(1, 1, text.width(), 48));
    QCOMPARE(barIn({0, 0, text.width() - 10, 50}), QRect(0, 0, text.width() - 10, 50));
}

void ActivityProgressItemDelegateTest::aSelectedCellIsHighlighted_data() {
    QTest::addColumn<bool>("active");
    QTest::addColumn<QColor>("cell");
    QTest::addColumn<QColor>("pen");
    QTest::newRow("active") << true << QColor(Qt::blue) << QColor(Qt::yellow);
    QTest::newRow("inactive") << false << QColor(Qt::gray) << QColor(Qt::cyan);
}

void ActivityProgressItemDelegateTest::aSelectedCellIsHighlighted() {
    QFETCH(bool, active);
    QFETCH(QColor, cell);
    QFETCH(QColor, pen);
    QStyle::State state = QStyle::State_Enabled | QStyle::State_Selected;
    state.setFlag(QStyle::State_Active, active);
    const QImage image = paint(moving(1, 1), {10, 5, 300, 50}, state);
    QCOMPARE(image.pixelColor(10, 5), cell);
    QCOMPARE(image.pixelColor(309, 54), cell);
    QCOMPARE(image.pixelColor(310, 55), QColor(Qt::white));
    QCOMPARE(style_->pens.front(), pen);
}

QTEST_MAIN(ActivityProgressItemDelegateTest)
#include "activity_progress_item_delegate_test.moc"
