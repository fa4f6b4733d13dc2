// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/system/failures.h"

namespace support::failures {

Failure refused() {
    return {111, "Connection refused"};
}

Failure reset() {
    return {104, "Connection reset by peer"};
}

Failure timedOut() {
    return {110, "Connection timed out"};
}

Failure portTaken() {
    return {98, "Address already in use"};
}

Failure outOfMemory() {
    return {12, "Cannot allocate memory"};
}

} // namespace support::failures
