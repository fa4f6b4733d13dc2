// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

namespace platform {

void fillStandardStreams() {
    // open() returns the lowest free descriptor.
    int place = 0;
    while (place >= 0 && place <= STDERR_FILENO)
        place = open("/dev/null", O_RDWR);
    if (place > STDERR_FILENO)
        close(place);
}

} // namespace platform
