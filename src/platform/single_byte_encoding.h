#pragma once

namespace pinmora {

/// Fills the table with the Unicode code point of each byte in a single-byte encoding, -1 for bytes
/// that stand for no character alone. False for a name that is not known.
bool mapSingleByteEncoding(const char *name, int (&codePoints)[256]);

} // namespace pinmora
