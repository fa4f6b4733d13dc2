// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/objects/object_table.h"

#include <algorithm>
#include <charconv>

#include "simulator/objects/failures.h"

namespace simulator {

std::string ObjectTable::handOut(const std::shared_ptr<Servant>& object) {
    const std::uint64_t number = ++last_;
    std::string url =
        object->session()->baseUrl + "/api/" + object->className() + "/" + std::to_string(number);
    entries_.emplace(url, Entry{number, object});
    return url;
}

std::shared_ptr<Servant> ObjectTable::resolve(const std::string& url) {
    const auto found = entries_.find(url);
    if (found != entries_.end())
        return found->second.object;
    throw Violation((wasHandedOut(url) ? "the object was released: " : "no such object: ") + url);
}

void ObjectTable::release(const std::string& url) {
    if (entries_.erase(url) == 0)
        throw Violation((wasHandedOut(url) ? "released twice: " : "no such object: ") + url);
}

bool ObjectTable::wasHandedOut(const std::string& url) const {
    if (entries_.count(url) != 0)
        return true;
    const std::string_view text = url;
    const std::string_view digits = text.substr(text.rfind('/') + 1);
    std::uint64_t number = 0;
    const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return text.find("/api/") != std::string_view::npos && parsed.ec == std::errc() &&
           parsed.ptr == digits.data() + digits.size() && number >= 1 && number <= last_;
}

void ObjectTable::loseWatched() {
    for (auto& [url, entry] : entries_)
        entry.lost = entry.lost || entry.number >= watchedFrom_;
}

std::vector<std::string> ObjectTable::held() const {
    std::vector<std::pair<std::uint64_t, std::string>> numbered;
    for (const auto& [url, entry] : entries_)
        if (!entry.lost)
            numbered.emplace_back(entry.number, entry.object->label() + " " + url);
    std::sort(numbered.begin(), numbered.end());
    std::vector<std::string> texts;
    texts.reserve(numbered.size());
    for (auto& [number, text] : numbered)
        texts.push_back(std::move(text));
    return texts;
}

} // namespace simulator
