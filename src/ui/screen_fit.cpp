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
#include <QStyle>
#include <QTimer>
#include <QWindow>
#include <QWizard>

namespace ui {

namespace {

/// Of borders and title bar, as long as it is unknown.
constexpr QSize usualFrame(8, 42);

/// Set on a window that has opened; from then on, the user determines its size.
constexpr char hasOpened[] = "hasOpened";

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
        connect(qApp, &QApplication::focusChanged, this,
                [this](QWidget*, QWidget* focused) { follow(focused); });
    }
    // The focus also changes while the base classes delete the content.
    ~ContentArea() override { disconnect(qApp, nullptr, this, nullptr); }

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

    /// Scrolls to the field that gets the focus. `QScrollArea` does so for the Tab key only, not
    /// for a mnemonic. A click must not move its target.
    void follow(QWidget* focused) {
        if (focused && widget()->isAncestorOf(focused) &&
            QApplication::mouseButtons() == Qt::NoButton)
            ensureWidgetVisible(focused);
    }

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

QSize frameOf(const QWidget& window) {
    const QMargins frame =
        window.windowHandle() ? window.windowHandle()->frameMargins() : QMargins();
    return usualFrame.expandedTo({frame.left() + frame.right(), frame.top() + frame.bottom()});
}

QSize roomOf(const QWidget& window) {
    const QScreen* screen = window.screen();
    return screen ? screen->availableSize() - frameOf(window)
                  : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

void shrinkToScreen(QWidget& window) {
    window.resize(window.size().boundedTo(roomOf(window)));
}

void moveOntoScreen(QWidget& window) {
    const QRect whole = window.frameGeometry();
    const QRect room = window.screen() ? window.screen()->availableGeometry() : whole;
    if (room.contains(whole))
        return;
    const QPoint least = room.topLeft();
    const QPoint most = room.bottomRight() - QPoint(whole.width() - 1, whole.height() - 1);
    window.move(std::max(std::min(whole.x(), most.x()), least.x()),
                std::max(std::min(whole.y(), most.y()), least.y()));
}

/// How long after the first paint the window manager may still place the window.
constexpr int timeToPlace = 1000; // milliseconds

/// Fits a window to its screen: first without knowing its frame, then again on the screen, until
/// the window manager has placed it.
class FitAtFirstShow : public QObject {
public:
    explicit FitAtFirstShow(QWidget& window)
        : QObject(&window)
        , window_(window) {
        shrinkToScreen(window);
        window.windowHandle()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const QEvent::Type type = event->type();
        if (isExposed_ && (type == QEvent::Move || type == QEvent::Resize)) {
            // The window takes note of its geometry after this filter.
            QMetaObject::invokeMethod(
                this, [this] { fit(); }, Qt::QueuedConnection);
        } else if (!isExposed_ && type == QEvent::Expose &&
                   static_cast<QWindow*>(watched)->isExposed()) {
            isExposed_ = true;
            QTimer::singleShot(timeToPlace, this, &QObject::deleteLater);
            fit();
        }
        return false;
    }

private:
    void fit() {
        if (window_.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen))
            return;
        shrinkToScreen(window_);
        moveOntoScreen(window_);
    }

    QWidget& window_;
    bool isExposed_ = false;
};

/// Whether the user could see and drag the title bar.
bool hasReachableTitle(const QWidget& window) {
    QRect title = window.frameGeometry();
    title.setHeight(usualFrame.height());
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        return screen->availableGeometry().intersects(title);
    });
}

/// Fits windows to their screens as they open. A window that comes back after its screen has been
/// unplugged moves to another.
class OpensOnScreen : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show && !event->spontaneous())
            if (auto* window = qobject_cast<QWidget*>(watched); window && isForScreen(*window))
                opens(*window);
        return false;
    }

private:
    /// Popups and tool tips have sizes of their own.
    static bool isForScreen(const QWidget& window) {
        return (window.windowType() == Qt::Window || window.windowType() == Qt::Dialog) &&
               window.windowHandle();
    }

    static void opens(QWidget& window) {
        if (!window.property(hasOpened).isValid()) {
            window.setProperty(hasOpened, true);
            new FitAtFirstShow(window);
        } else if (!hasReachableTitle(window)) {
            moveOntoScreen(window);
        }
    }
};

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
    virtual void beforeShow(QDialog& dialog) = 0;
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
        const QSize room = roomOf(dialog);
        dialog.setMinimumHeight(std::min(leastHeight(), room.height()));
        QSize wanted = dialog.sizeHint();
        if (wanted.height() > room.height()) // the bar beside the pages needs width
            wanted.rwidth() += dialog.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        dialog.resize(wanted.boundedTo(room));
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
    return available.size() - usualFrame;
}

int growOnScreen(QWidget& window, int height) {
    const int grown = std::clamp(roomOf(window).height() - window.height(), 0, height);
    if (window.minimumHeight() == window.maximumHeight())
        window.setFixedHeight(window.height() + grown);
    else
        window.resize(window.width(), window.height() + grown);
    moveOntoScreen(window);
    return grown;
}

void keepWindowsOnScreen(QApplication& application) {
    application.installEventFilter(new OpensOnScreen(&application));
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
