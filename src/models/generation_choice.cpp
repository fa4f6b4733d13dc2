// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/generation_choice.h"

#include <algorithm>
#include <cstddef>

namespace models {

using hessiancln::file_generations;

Generations newestFirst(Generations generations) {
    std::stable_sort(generations.begin(), generations.end(),
                     [](const file_generations& a, const file_generations& b) {
                         return a.backup_time > b.backup_time;
                     });
    return generations;
}

int newestInRange(const Generations& generations, std::int32_t from, std::int32_t to) {
    int newest = -1;
    for (std::size_t row = 0; row < generations.size(); ++row) {
        const std::int32_t time = generations[row].backup_time;
        if ((from != 0 && time < from) || (to != 0 && time > to))
            continue;
        if (newest < 0 || time > generations[static_cast<std::size_t>(newest)].backup_time)
            newest = static_cast<int>(row);
    }
    return newest;
}

bool isNewestWithin(const Generations& generations, std::int32_t to, std::int32_t chosen) {
    if (to < chosen)
        return false;
    return std::none_of(generations.begin(), generations.end(), [&](const file_generations& one) {
        return one.backup_time > chosen && (to == 0 || one.backup_time <= to);
    });
}

} // namespace models
