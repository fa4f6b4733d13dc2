// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/screen_fit.h"

#include <algorithm>
#include <memory>

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWizard>

namespace ui {

namespace {

/// Borders and title bar, whose size is unknown before the window is on the screen.
constexpr QSize frame(8, 42);

/// Has the size hint of its content, or the wanted size if that is larger, and a small minimum
/// size.
class ContentArea : public QScrollArea {
public:
    explicit ContentArea(QWidget& page)
        : QScrollArea(&page) {
        setFrameShape(NoFrame);
        // Not a tab stop: it scrolls to the field that gets the focus.
        setFocusPolicy(Qt::NoFocus);
        auto* content = new QWidget(this);
        content->setLayout(page.layout());
        setWidget(content);
        content->setAutoFillBackground(false);
        viewport()->setAutoFillBackground(false);
    }

    bool viewportEvent(QEvent* event) override {
        const bool handled = QScrollArea::viewportEvent(event);
        if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)
            fitContent();
        return handled;
    }

    void setWantedSize(QSize size) {
        wanted_ = size;
        updateGeometry();
    }

    QSize sizeHint() const override { return widget()->sizeHint().expandedTo(wanted_); }
    QSize minimumSizeHint() const override {
        const QSize needed = widget()->minimumSizeHint();
        const int bar = verticalScrollBar()->sizeHint().width();
        return {std::min(needed.width() + bar, smallest.width()),
                std::min(needed.height(), smallest.height())};
    }

private:
    static constexpr QSize smallest{200, 80};

    /// Fits the content to the viewport; below its minimum size, it scrolls. `QScrollArea` itself
    /// would scroll wrapped texts already below their preferred height.
    void fitContent() {
        const QLayout& layout = *widget()->layout();
        const int width = std::max(viewport()->width(), layout.totalMinimumSize().width());
        widget()->resize(width, std::max(viewport()->height(), leastHeight(layout, width)));
    }
    static int leastHeight(const QLayout& layout, int width) {
        return layout.hasHeightForWidth() ? layout.minimumHeightForWidth(width)
                                          : layout.totalMinimumSize().height();
    }

    QSize wanted_;
};

QSize roomOf(const QWidget& window) {
    const QScreen* screen = window.screen();
    return screen ? largestWindow(screen->availableGeometry())
                  : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

/// Acts just before a dialog is shown: it has its size, but no position yet.
class AtShow : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show && !event->spontaneous())
            if (auto* dialog = qobject_cast<QDialog*>(watched); dialog && dialog->isWindow())
                beforeShow(*dialog);
        return false;
    }

private:
    virtual void beforeShow(QDialog& dialog) {
        dialog.resize(dialog.size().boundedTo(roomOf(dialog)));
    }
};

/// Without this, a dialog with scrolling content would open without regard to the content's size.
class OpensWhole : public AtShow {
public:
    OpensWhole(QDialog& dialog, const ContentArea& area)
        : AtShow(&dialog)
        , area_(area) {}

private:
    void beforeShow(QDialog& dialog) override {
        dialog.layout()->activate();
        const QSize lacking = area_.widget()->minimumSizeHint() - area_.size();
        dialog.resize((dialog.size() + lacking.expandedTo({0, 0})).boundedTo(roomOf(dialog)));
    }

    const ContentArea& area_;
};

/// The first time only: later, the wizard keeps the size that the user gave it.
class OneSize : public AtShow {
public:
    OneSize(QWizard& wizard, int spare)
        : AtShow(&wizard)
        , wizard_(wizard)
        , spare_(spare) {}

private:
    /// With the pages at their minimum height.
    int leastHeight() const {
        const QPixmap watermark = wizard_.pixmap(QWizard::WatermarkPixmap);
        const int beside = watermark.height() / std::max(1, qRound(watermark.devicePixelRatio()));
        const int buttons = 3 * wizard_.button(QWizard::CancelButton)->sizeHint().height();
        return std::max(wizard_.sizeHint().height() - spare_, beside + buttons);
    }

    void beforeShow(QDialog& dialog) override {
        if (isDone_)
            return;
        isDone_ = true;
        // With a watermark, a wizard uses its size hint as minimum height unless one is set.
        dialog.setMinimumHeight(leastHeight());
        dialog.resize(dialog.sizeHint().boundedTo(roomOf(dialog)));
    }

    QWizard& wizard_;
    int spare_; ///< by how much a page may be lower than its size hint
    bool isDone_ = false;
};

/// The content area of a page; creates it if necessary.
ContentArea& contentAreaOf(QWidget& page) {
    for (auto* area : page.findChildren<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly))
        if (auto* own = dynamic_cast<ContentArea*>(area))
            return *own;
    letContentScroll(page);
    return contentAreaOf(page);
}

} // namespace

QSize largestWindow(const QRect& available) {
    return available.size() - frame;
}

void keepOnScreen(QWidget& window) {
    const QScreen* screen = window.screen();
    if (!screen)
        return;
    const QRect room = screen->availableGeometry();
    const QSize size = window.size().boundedTo(largestWindow(room));
    if (size == window.size())
        return;
    window.resize(size);
    window.move(room.topLeft() + QPoint((room.width() - size.width()) / 2, 0));
}

int growOnScreen(QWidget& window, int height) {
    const QRect room =
        window.screen() ? window.screen()->availableGeometry() : QRect(QPoint(), window.size());
    const int grown = std::clamp(largestWindow(room).height() - window.height(), 0, height);
    if (window.minimumHeight() == window.maximumHeight())
        window.setFixedHeight(window.height() + grown);
    else
        window.resize(window.width(), window.height() + grown);
    const QRect whole = window.frameGeometry();
    const int below = std::min(whole.bottom() - room.bottom(), whole.top() - room.top());
    if (below > 0)
        window.move(window.pos() - QPoint(0, below));
    return grown;
}

void keepDialogsOnScreen(QApplication& application) {
    application.installEventFilter(new AtShow(&application));
}

void letContentScroll(QWidget& page, QLayout* buttons) {
    const QMargins margins = page.layout()->contentsMargins();
    if (buttons) {
        page.layout()->removeItem(buttons);
        buttons->setParent(nullptr);
        buttons->setContentsMargins(margins.left(), 0, margins.right(), margins.bottom());
    }
    auto* area = new ContentArea(page);
    auto* outer = new QVBoxLayout(&page);
    outer->setContentsMargins({});
    outer->addWidget(area, 1);
    if (buttons)
        outer->addLayout(buttons);
    if (auto* dialog = qobject_cast<QDialog*>(&page))
        dialog->installEventFilter(new OpensWhole(*dialog, *area));
}

void letContentScroll(QWidget& page, QWidget& buttons) {
    page.layout()->removeWidget(&buttons);
    auto row = std::make_unique<QHBoxLayout>();
    row->addWidget(&buttons);
    letContentScroll(page, row.release());
}

void giveOneSize(QWizard& wizard) {
    QSize largest;
    QList<ContentArea*> areas;
    for (const int id : wizard.pageIds()) {
        QWizardPage& page = *wizard.page(id);
        if (!page.layout())
            continue;
        page.ensurePolished();
        largest = largest.expandedTo(page.sizeHint());
        if (const auto* growing = dynamic_cast<const GrowingPage*>(&page))
            largest = largest.expandedTo(growing->largestSize());
        areas << &contentAreaOf(page);
    }
    int least = 0;
    for (ContentArea* area : areas) {
        area->setWantedSize(largest);
        least = std::max(least, area->minimumSizeHint().height());
    }
    wizard.installEventFilter(new OneSize(wizard, largest.height() - least));
}

} // namespace ui
