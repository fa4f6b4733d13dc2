// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/zip_reader.h"

#include <array>

#include <QFile>
#include <QFileInfo>

#include <zip.h>

namespace ui {

namespace {

struct CloseEntry {
    void operator()(zip_file_t* entry) const { zip_fclose(entry); }
};

} // namespace

void ZipReader::Discard::operator()(zip* archive) const {
    zip_discard(archive);
}

ZipReader::ZipReader(const QString& path) {
    // Opening a pipe would block until a writer opens it.
    if (QFileInfo(path).isFile())
        archive_.reset(zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, nullptr));
}

QByteArray ZipReader::read(const char* name) const {
    if (!archive_)
        return {};
    const std::unique_ptr<zip_file_t, CloseEntry> entry(zip_fopen(archive_.get(), name, 0));
    if (!entry)
        return {};
    QByteArray bytes;
    std::array<char, 1024> block;
    for (;;) {
        const zip_int64_t count = zip_fread(entry.get(), block.data(), block.size());
        if (count == 0)
            return bytes;
        // The size in the central directory is only a claim; the unpacked size counts.
        if (count < 0 || bytes.size() + count > largestEntry)
            return {};
        bytes.append(block.data(), static_cast<int>(count));
    }
}

} // namespace ui
