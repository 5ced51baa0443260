// Addresses for the browser.
#pragma once

#include <QString>

#include "core/types.h"

namespace quillor {

/// The address of a page, which stays as it is, with what is sought there behind
/// it, percent-encoded as UTF-8: blanks, accents, and signs that would mean
/// something in an address ("?", "#", "&") are the phrase's own. Never fails.
QString encodedAddress(TextView page, TextView sought);

}  // namespace quillor
