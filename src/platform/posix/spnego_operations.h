// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/security_context.h"

namespace platform {

/// The security operations on GSSAPI: Kerberos negotiated by SPNEGO (RFC 4178). They are
/// never destroyed.
SecurityOperations& spnegoOperations();

} // namespace platform
