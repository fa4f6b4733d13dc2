// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QByteArray>
#include <QString>

struct zip;

namespace ui {

/// Reads entries of a ZIP file. Any problem with the file looks like a missing entry.
class ZipReader {
public:
    /// Maximum unpacked size of an entry, in bytes. A larger entry counts as missing, so that a
    /// small file can't fill the memory.
    static constexpr qint64 largestEntry = qint64(16) * 1024 * 1024;

    explicit ZipReader(const QString& path);

    /// The bytes of the entry with exactly this name; empty if it is missing, damaged, encrypted or
    /// too large.
    QByteArray read(const char* name) const;

private:
    struct Discard {
        void operator()(zip* archive) const;
    };
    std::unique_ptr<zip, Discard> archive_;
};

} // namespace ui
