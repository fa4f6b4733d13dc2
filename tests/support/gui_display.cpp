// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/gui_display.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QLockFile>
#include <QPoint>

namespace support {

namespace {

constexpr int limit = 10'000; ///< milliseconds

QByteArray configurationWithTitles(int points) {
    const QByteArray size = "<size>" + QByteArray::number(points) + "</size></font>";
    return "<openbox_config xmlns=\"http://openbox.org/3.4/rc\"><theme>"
           "<font place=\"ActiveWindow\">" +
           size + "<font place=\"InactiveWindow\">" + size + "</theme></openbox_config>";
}

/// Whether a window manager manages the display before the limit. It lists its windows last, long
/// after what it supports.
bool isManaged() {
    const QDeadlineTimer deadline(limit);
    while (!deadline.hasExpired()) {
        Helper properties;
        if (properties.launch(QStringLiteral("xprop"),
                              {QStringLiteral("-root"), QStringLiteral("_NET_CLIENT_LIST")}) &&
            properties.waitForFinished(1000) &&
            properties.readAllStandardOutput().contains("_NET_CLIENT_LIST(WINDOW)"))
            return true;
    }
    return false;
}

} // namespace

Helper::~Helper() {
    terminate();
    if (!waitForFinished(2000))
        kill();
    waitForFinished();
}

bool Helper::launch(const QString& program, const QStringList& arguments) {
    start(program, arguments);
    return waitForStarted();
}

QByteArray Helper::line() {
    QByteArray text;
    while (!text.endsWith('\n') && waitForReadyRead(limit))
        text += readAllStandardOutput();
    return text.endsWith('\n') ? text.trimmed() : QByteArray();
}

bool Display::begin(const QSize& size, int dots) {
    const QString screen = QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height());
    // Displays that start at the same moment may choose the same number.
    QLockFile others(QDir::temp().filePath(QStringLiteral("tarn-test-display.lock")));
    (void)others.tryLock(limit);
    // Without "-noreset" the end of the last client closes connections that are being opened.
    if (!launch(QStringLiteral("Xvfb"),
                {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-noreset"),
                 QStringLiteral("-screen"), QStringLiteral("0"), screen, QStringLiteral("-dpi"),
                 QString::number(dots), QStringLiteral("-nolisten"), QStringLiteral("tcp")}))
        return false;
    const QByteArray number = line();
    return !number.isEmpty() && qputenv("DISPLAY", ":" + number);
}

bool WindowManager::begin(int titlePoints) {
    return configuration_.open() &&
           configuration_.write(configurationWithTitles(titlePoints)) > 0 &&
           configuration_.flush() &&
           launch(QStringLiteral("openbox"),
                  {QStringLiteral("--sm-disable"), QStringLiteral("--config-file"),
                   configuration_.fileName()}) &&
           isManaged();
}

bool Bus::begin() {
    if (!launch(QStringLiteral("dbus-daemon"),
                {QStringLiteral("--session"), QStringLiteral("--nofork"),
                 QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1")}))
        return false;
    const QByteArray address = line();
    return !address.isEmpty() && qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

bool clickAt(const QPoint& place) {
    Helper mouse;
    return mouse.launch(QStringLiteral("xdotool"),
                        {QStringLiteral("mousemove"), QString::number(place.x()),
                         QString::number(place.y()), QStringLiteral("click"),
                         QStringLiteral("1")}) &&
           mouse.waitForFinished(limit) && mouse.exitCode() == 0;
}

} // namespace support
