// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string_view>

namespace simulator {

class World;

/// The computers in every world filled by `addSources`.
///
///     my computer        local, Windows or generic Unix like the agent; with presets
///     FILESRV, HP-8200   Windows, without presets
///     nas01              generic Unix, with a preset
///     web01.example.net  SSH, without presets
///
/// On each of them "anna" and "backup" can log in with the password; on Unix "root" can too, and
/// others can switch to it. To make a computer require another kind of login, change its `kind`:
///
///     world.network.local()->kind = LoginKind::Ssh;
namespace sources {

inline constexpr std::string_view password = "sesame";
inline constexpr std::string_view fileServer = R"(Microsoft Windows Network\OFFICE\FILESRV)";
inline constexpr std::string_view oldWorkstation = R"(Microsoft Windows Network\OFFICE\HP-8200)";
inline constexpr std::string_view storage = R"(Unix Hosts\nas01)";
inline constexpr std::string_view webServer = R"(Unix Hosts\web01.example.net)";
inline constexpr std::string_view keyFile = "/etc/tarn/id_ed25519"; ///< for the web server
inline constexpr std::string_view passphrase = "open sesame";

/// Inaccessible containers, and folders on the agent's computer: an inaccessible one, and one with
/// many entries.
inline constexpr std::string_view brokenNetwork = R"(Microsoft Windows Network\WORKGROUP)";
inline constexpr std::string_view closedFolder = R"(C:\System Volume Information)";
inline constexpr std::string_view closedUnixFolder = R"(/\root)";
inline constexpr std::string_view largeFolder = R"(D:\Scans)";
inline constexpr std::string_view largeUnixFolder = R"(/\var\scans)";
inline constexpr std::size_t largeCount = 100'000;

} // namespace sources

/// Adds the computers to the world. The kind of agent must already be set.
void addSources(World& world);

} // namespace simulator
