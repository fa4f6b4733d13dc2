// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace end_to_end {

class Player;

/// Logs in with a password, backs up, makes a set and deletes it, and quits.
void playWork(Player& player);

/// Logs in with a password, notes it, and has the about box open when the program is asked to end.
void playStay(Player& player);

/// Is logged on at the start, by the operating system's account; then by the dialog, with its box
/// checked, and with a password.
void playTicket(Player& player);

/// Is asked at the start for want of a ticket, tries all the same, and then gives a password.
void playNoTicket(Player& player);

/// Notes what the start leads to; if to the login dialog, also what its box leads to. Then quits.
void playLogon(Player& player);

} // namespace end_to_end
