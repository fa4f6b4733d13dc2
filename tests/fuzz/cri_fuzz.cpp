// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <vector>

#include <QBuffer>

#include "config/cri_file.h"
#include "properties.h"
#include "session/text.h"

namespace {

const char* nameOf(config::CriKey key) {
    using config::CriKey;
    switch (key) {
    case CriKey::customerName:
        return "UserName";
    case CriKey::accountNumber:
        return "AccountName";
    case CriKey::clientNumber:
        return "ClientNumber";
    case CriKey::systemAddresses:
        return "SystemAddress";
    case CriKey::privateKeyType:
        return "PrivateEncType";
    case CriKey::privateKey:
        return "PrivateEncKey";
    case CriKey::accountKeyType:
        return "AccEncType";
    case CriKey::accountKey:
        return "AccEncKey";
    }
    fuzz::require(false, "a key is one of eight");
    return "";
}

/// The entries of a file with these bytes, a line for each.
std::vector<std::string> linesOf(std::string_view bytes, QIODevice::OpenMode mode) {
    QByteArray copy(bytes.data(), static_cast<int>(bytes.size()));
    QBuffer file(&copy);
    file.open(QIODevice::ReadOnly | mode);
    std::vector<std::string> lines;
    config::readCri(file, [&lines](const config::CriEntry& entry) {
        config::keyTypeOfCri(entry.value);
        const auto line = std::string(nameOf(entry.key)) + "=" + session::toWire(entry.value);
        fuzz::require(line.find('\n') == std::string::npos, "an entry is of one line");
        lines.push_back(line);
        return true;
    });
    return lines;
}

} // namespace

/// A file for the registration of an agent.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto lines = linesOf(fuzz::asText(data, size), QIODevice::Text);
    std::string again;
    for (const std::string& line : lines) {
        // Latin-1 gets longer as UTF-8.
        if (line.size() + 1 >= static_cast<std::size_t>(config::longestLine))
            return 0;
        again += line + "\n";
    }
    fuzz::require(linesOf(again, {}) == lines, "what is written again reads the same");
    return 0;
}
