// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ui {

/// Qt announces each edit of a field to screen readers, on a bus on which others may listen, in the
/// letters that were typed or that went, even if the field hides them. From here on the edits of
/// every `SecretField` that hides what it holds are announced in the character that it shows in
/// their place; all else is passed on as it is. Takes effect once, however often it is called.
void maskAnnouncements();

} // namespace ui
