// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ui {

/// Qt announces each edit of a field to screen readers with the inserted and removed text, even if
/// the field hides it, on a bus that other programs can read. While an object of this class exists,
/// edits of a `SecretField` that hides its content are announced with its mask character;
/// everything else is passed on unchanged. Meanwhile, Qt handles each change of a table twice.
class MaskedAnnouncements {
public:
    MaskedAnnouncements();
    MaskedAnnouncements(const MaskedAnnouncements&) = delete;
    MaskedAnnouncements& operator=(const MaskedAnnouncements&) = delete;
    ~MaskedAnnouncements();
};

} // namespace ui
