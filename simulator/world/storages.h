// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "simulator/world/stored_data.h"

namespace simulator {

/// What a storage demonstrates. Its scenario has one set with this storage.
enum class Storage {
    Generations, ///< files with many generations in two years, and removed files
    Groups,      ///< nested grouping entries, also below a drive, and databases
    Shares,      ///< shares whose folder names become equal or empty
    Failing,     ///< a drive, folders, a group and a file that can't be read
    ManyFiles,   ///< a folder with 100,000 files
    Deep,        ///< 60 nested folders
};

inline constexpr std::array allStorages{Storage::Generations, Storage::Groups,    Storage::Shares,
                                        Storage::Failing,     Storage::ManyFiles, Storage::Deep};

/// Names and sizes for tests. Paths begin with a share.
namespace storages {

inline constexpr std::string_view home = R"(C:\Users\ann)";
inline constexpr std::string_view refusal = "The stored folder can't be read.";
inline constexpr std::string_view largeFolder = R"(D:\Scans)";
inline constexpr std::size_t largeCount = 100'000;
inline constexpr int depth = 60;
/// Without characters that are invalid in folder names, the first three are "C", and the next two
/// are empty.
inline constexpr std::array<std::string_view, 6> shares{"C:",           "C", "C|",
                                                        R"("*/:<>?\|)", "/", "Büro"};

} // namespace storages

/// The name on the set's card: "Many files".
std::string_view nameOf(Storage storage);

/// The times of the backups in such a storage, oldest first: monthly for two years, and daily in
/// the last two weeks.
std::vector<std::int32_t> backupTimes(std::int32_t now);

std::shared_ptr<StoredData> makeStorage(Storage storage, const std::vector<std::int32_t>& backups);

} // namespace simulator
