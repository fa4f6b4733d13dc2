// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/week_picture.h"

#include <algorithm>
#include <set>
#include <utility>

#include <QDateTime>
#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QToolTip>

#include "session/text.h"
#include "ui/locale_text.h"

namespace {

constexpr int days = 7;
constexpr int hoursBetweenLines = 6;
constexpr int gap = 2;

QString hourText(int hour) {
    return QStringLiteral("%1:00").arg(hour, 2, 10, QLatin1Char('0'));
}

} // namespace

WeekPicture::WeekPicture(QWidget* parent)
    : QWidget(parent) {
    setMouseTracking(true);
}

void WeekPicture::showRuns(std::vector<insight::PlannedRun> runs, std::int64_t from) {
    runs_ = std::move(runs);
    from_ = from;
    parts_ = insight::dayParts(runs_, from_, days, QTimeZone::systemTimeZone(), lanes_);
    setAccessibleDescription(spokenText());
    update();
}

QString WeekPicture::spokenText() const {
    std::set<std::size_t> shown;
    for (const insight::DayPart& part : parts_)
        shown.insert(part.run);
    const auto overlapping =
        std::ranges::count_if(shown, [this](std::size_t run) { return runs_[run].overlaps; });
    return tr("Runs in these 7 days: %1. At the same time as another: %2. The list has each of "
              "them.")
        .arg(ui::numberText(static_cast<qint64>(shown.size())),
             ui::numberText(static_cast<qint64>(overlapping)));
}

QSize WeekPicture::minimumSizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(hourText(24)) +
                days * metrics.horizontalAdvance(QLatin1Char('0')) * 7,
            metrics.height() * 9};
}

QSize WeekPicture::sizeHint() const {
    return minimumSizeHint() * 1.5;
}

QRectF WeekPicture::bodyOfDay(int day) const {
    const QFontMetrics metrics = fontMetrics();
    const int left = metrics.horizontalAdvance(hourText(24)) + 2 * gap;
    const int top = metrics.height() + 2 * gap;
    const double width = (this->width() - left - 1) / double{days};
    return {left + day * width, double(top), width, height() - top - metrics.height() / 2.0};
}

QRectF WeekPicture::barOf(const insight::DayPart& part) const {
    const QRectF body = bodyOfDay(part.day);
    const double width =
        (body.width() - gap) / std::max(1, lanes_[static_cast<std::size_t>(part.day)]);
    return {body.left() + gap + part.lane * width, body.top() + part.begin * body.height(),
            width - gap, (part.end - part.begin) * body.height()};
}

void WeekPicture::paintDays(QPainter& painter) const {
    const QLocale locale = QLocale::system();
    const QDate first = QDateTime::fromSecsSinceEpoch(from_).date();
    painter.setPen(palette().color(QPalette::Mid));
    for (int day = 0; day < days; ++day) {
        const QRectF body = bodyOfDay(day);
        painter.fillRect(body,
                         palette().color(day % 2 == 0 ? QPalette::Base : QPalette::AlternateBase));
        painter.drawRect(body);
    }
    const QRectF week = bodyOfDay(0).united(bodyOfDay(days - 1));
    for (int hour = 0; hour <= 24; hour += hoursBetweenLines) {
        const double y = week.top() + week.height() * hour / 24;
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawLine(QPointF(week.left(), y), QPointF(week.right(), y));
        painter.setPen(palette().color(QPalette::WindowText));
        const double line = fontMetrics().height();
        painter.drawText(QRectF(0, y - line / 2, week.left() - gap, line),
                         Qt::AlignRight | Qt::AlignVCenter, hourText(hour));
    }
    for (int day = 0; day < days; ++day) {
        const QRectF body = bodyOfDay(day);
        const QDate date = first.addDays(day);
        const QString text = locale.dayName(date.dayOfWeek(), QLocale::ShortFormat) +
                             QLatin1Char(' ') + QString::number(date.day());
        painter.drawText(QRectF(body.left(), 0, body.width(), body.top()), Qt::AlignCenter, text);
    }
}

void WeekPicture::paintBars(QPainter& painter) const {
    for (const insight::DayPart& part : parts_) {
        const QRectF bar = barOf(part);
        const bool overlaps = runs_[part.run].overlaps;
        const QColor colour =
            overlaps ? QColor(0xda, 0x44, 0x53) : palette().color(QPalette::Highlight);
        painter.fillRect(bar, colour);
        // Don't rely on colour alone.
        if (overlaps)
            painter.fillRect(bar, QBrush(Qt::white, Qt::BDiagPattern));
        const double line = fontMetrics().height();
        if (bar.height() < line || bar.width() < fontMetrics().averageCharWidth() * 4)
            continue;
        painter.setPen(palette().color(QPalette::HighlightedText));
        painter.drawText(bar.adjusted(gap, 0, -gap, 0), Qt::AlignLeft | Qt::AlignTop,
                         fontMetrics().elidedText(session::fromWire(runs_[part.run].name),
                                                  Qt::ElideRight,
                                                  static_cast<int>(bar.width()) - 2 * gap));
    }
}

void WeekPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintDays(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    paintBars(painter);
}

bool WeekPicture::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    for (const insight::DayPart& part : parts_) {
        if (!barOf(part).adjusted(-1, -1, 1, 1).contains(help->pos()))
            continue;
        const insight::PlannedRun& run = runs_[part.run];
        const QString text =
            tr("%1\n%2 to %3")
                .arg(session::fromWire(run.name), ui::timeText(run.start, QLocale::ShortFormat),
                     ui::timeText(run.end, QLocale::ShortFormat));
        // The name of a set may look like markup.
        QToolTip::showText(help->globalPos(),
                           QStringLiteral("<p style='white-space:pre'>") + text.toHtmlEscaped() +
                               QStringLiteral("</p>"),
                           this);
        return true;
    }
    QToolTip::hideText();
    return true;
}
