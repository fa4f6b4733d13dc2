// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QProcess>
#include <QSize>
#include <QTemporaryFile>

/// The parts of a desktop that a test starts for itself.
namespace support {

/// A process that ends with this object.
class Helper : public QProcess {
public:
    ~Helper() override;

    bool launch(const QString& program, const QStringList& arguments);

protected:
    /// The next line of its output, without the line end; empty if it doesn't come.
    QByteArray line();
};

/// A virtual display. It becomes the display of this process and its children.
class Display : public Helper {
public:
    /// `size` in pixels, `dots` per inch.
    bool begin(const QSize& size = {1280, 800}, int dots = 100);
};

/// A window manager for the display of this process.
class WindowManager : public Helper {
public:
    /// `titlePoints` is the size of the font in the title bars.
    bool begin(int titlePoints = 9);

private:
    QTemporaryFile configuration_;
};

/// A D-Bus session. It becomes the session of this process and its children.
class Bus : public Helper {
public:
    bool begin();
};

/// Moves the mouse to a place on the display and clicks.
bool clickAt(const QPoint& place);

} // namespace support
