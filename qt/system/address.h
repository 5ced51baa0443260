// Addresses for the browser.
#pragma once

#include <QString>

#include "core/types.h"

namespace quillor {

/// The address with everything that stands behind its fixed part (host, path
/// and first query key) percent-encoded as UTF-8, so that a phrase appended
/// as it is written survives: blanks, accents, and signs that mean something
/// in an address.
QString encodedAddress(TextView address);

}  // namespace quillor
