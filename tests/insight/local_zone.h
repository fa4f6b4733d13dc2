// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <ctime>

#include <QByteArray>
#include <QtGlobal>

/// Sets the time zone of the process for the lifetime of this object.
class LocalZone {
public:
    explicit LocalZone(const char* name)
        : before_(qgetenv("TZ")) {
        set(name);
    }
    ~LocalZone() { set(before_); }
    LocalZone(const LocalZone&) = delete;
    LocalZone& operator=(const LocalZone&) = delete;

private:
    static void set(const QByteArray& name) {
        qputenv("TZ", name);
        tzset();
    }

    QByteArray before_;
};
