// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace end_to_end {

class Player;

/// Logs in with a password, backs up, creates a set and deletes it, and quits. Records the style
/// and the button for the way back in a wizard.
void playWork(Player& player);

/// Logs in with a password, records the style and the colours, and quits.
void playLook(Player& player);

/// Logs in with a password, records it, and leaves the about box open until the program is closed.
void playStay(Player& player);

/// Is logged in at the start while the window stays hidden, and records it.
void playTray(Player& player);

/// Is logged in at the start as the system's user, then through the dialog with its box checked,
/// then with a password.
void playTicket(Player& player);

/// Without a ticket, gets the login dialog; tries without a password anyway, then enters one.
void playNoTicket(Player& player);

/// Records the outcome of the start and, if that is the login dialog, of its box. Then quits.
void playLogon(Player& player);

} // namespace end_to_end
