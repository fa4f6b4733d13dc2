// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string_view>

namespace simulator {

class World;

/// The computers of every world that `addSources` has filled.
///
///     my computer        local, Windows or generic Unix as the agent is; with presets
///     FILESRV, HP-8200   Windows, without presets
///     nas01              generic Unix, with a preset
///     web01.example.net  SSH, without presets
///
/// On each of them "anna" and "backup" may log in with the password; so may "root" on Unix, whom
/// others can become. A computer asks for another kind of login if its `kind` is changed:
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

/// Containers that can't be looked into, and folders on the agent's computer: one that can't,
/// and one that is full.
inline constexpr std::string_view brokenNetwork = R"(Microsoft Windows Network\WORKGROUP)";
inline constexpr std::string_view closedFolder = R"(C:\System Volume Information)";
inline constexpr std::string_view closedUnixFolder = R"(/\root)";
inline constexpr std::string_view largeFolder = R"(D:\Scans)";
inline constexpr std::string_view largeUnixFolder = R"(/\var\scans)";
inline constexpr std::size_t largeCount = 100'000;

} // namespace sources

/// Gives the world its computers. What the agent is must be known by then.
void addSources(World& world);

} // namespace simulator
