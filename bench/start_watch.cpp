// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// A plug-in of Qt that an unchanged program loads when QT_QPA_GENERIC_PLUGINS names it with a file
// descriptor, as in "startwatch:3". It writes the time at which the first window has been painted,
// and the processor time that the program took until then.
#include <memory>

#include <time.h>
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QWidget>

namespace bench {

/// Once the first window has been painted, it writes the monotonic time and the processor time, in
/// seconds.
class FirstPaint : public QObject {
public:
    explicit FirstPaint(int descriptor)
        : descriptor_(descriptor) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        // A window's contents go to the screen at the end of its update request; the event that
        // follows is of the window's platform window.
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && widget && widget->isWindow())
            QMetaObject::invokeMethod(
                this, [this] { write(); }, Qt::QueuedConnection);
        return false;
    }

private:
    void write() {
        if (descriptor_ < 0)
            return;
        timespec now{};
        ::clock_gettime(CLOCK_MONOTONIC, &now);
        timespec busy{};
        ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &busy);
        ::dprintf(descriptor_, "%lld.%09ld\n%lld.%09ld\n", static_cast<long long>(now.tv_sec),
                  now.tv_nsec, static_cast<long long>(busy.tv_sec), busy.tv_nsec);
        ::close(descriptor_);
        descriptor_ = -1;
        QCoreApplication::instance()->removeEventFilter(this);
    }

    int descriptor_;
};

class StartWatch : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "start_watch.json")
public:
    QObject* create(const QString&, const QString& descriptor) override {
        return std::make_unique<FirstPaint>(descriptor.toInt()).release();
    }
};

} // namespace bench

#include "start_watch.moc"
