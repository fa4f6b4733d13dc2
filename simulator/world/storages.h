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

/// What a storage is there to show. Its scenario has one set, whose storage it is.
enum class Storage {
    Generations, ///< files with many generations in two years, and files that are gone
    Groups,      ///< grouping entries, one in the other and below a drive, and databases
    Shares,      ///< shares whose names become the same, or nothing, as names of folders
    Failing,     ///< a drive, folders, a group and a file that can't be read
    ManyFiles,   ///< a folder with 100,000 files
    Deep,        ///< 60 folders, one in the other
};

inline constexpr std::array allStorages{Storage::Generations, Storage::Groups,    Storage::Shares,
                                        Storage::Failing,     Storage::ManyFiles, Storage::Deep};

/// What tests look for in them. Paths begin with a share.
namespace storages {

inline constexpr std::string_view home = R"(C:\Users\ann)";
inline constexpr std::string_view refusal = "The stored folder can't be read.";
inline constexpr std::string_view largeFolder = R"(D:\Scans)";
inline constexpr std::size_t largeCount = 100'000;
inline constexpr int depth = 60;
/// Without the characters that no name of a folder has, the first three are "C", and nothing is
/// left of the next two.
inline constexpr std::array<std::string_view, 6> shares{"C:",           "C", "C|",
                                                        R"("*/:<>?\|)", "/", "Büro"};

} // namespace storages

/// What a set's card calls it: "Many files".
std::string_view nameOf(Storage storage);

/// The times of the backups that filled such a storage, oldest first: one a month for two years,
/// and one a day in the last two weeks.
std::vector<std::int32_t> backupTimes(std::int32_t now);

std::shared_ptr<StoredData> makeStorage(Storage storage, const std::vector<std::int32_t>& backups);

} // namespace simulator
