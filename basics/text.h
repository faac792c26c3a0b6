#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace store {

/// Texts are UTF-8. The database's fields and the terminal's records have widths in bytes of the
/// Korean code page 949 (an ASCII letter is one, a Korean letter two), so texts are measured and
/// cut there. Nothing here fails: what has no place in the code page becomes "?", a byte that is no
/// letter of it becomes U+FFFD, which goes back as one byte.

/// UTF-8 to code page 949. Each character that the code page lacks gives one "?".
std::string ToCodePage949(std::string_view text);

/// Code page 949 to UTF-8. Each byte that is part of no letter gives one U+FFFD.
std::string FromCodePage949(std::string_view bytes);

/// Takes what has arrived of a text in code page 949 out of `bytes` and decodes it. The first half
/// of a letter at the end is left there: its other byte comes later.
std::string TakeWholeLetters(std::string& bytes);

/// `length` bytes (fewer where the text ends) of the text in code page 949 from byte `start`,
/// counted from 1. A start before 1 or a length under 1 gives an empty text; a cut through a Korean
/// letter leaves U+FFFD.
std::string ByteMid(std::string_view text, int start, int length);

/// Bytes of the text in code page 949; 0 for a text that is too long for 16 bits.
std::int16_t ByteLen(std::string_view text);

/// Without the blanks at both ends. Only blanks: a tab or a line end stays.
std::string Trim(std::string_view text);

/// Characters (code points) of the text.
int CharLength(std::string_view text);

/// The first `count` characters; all of them when there are fewer, none for a count under 1.
std::string LeftChars(std::string_view text, int count);

/// The last `count` characters; all of them when there are fewer, none for a count under 1.
std::string RightChars(std::string_view text, int count);

/// `length` characters from character `start`, counted from 1; without a length, all that follow.
/// A start before 1 or behind the end gives an empty text.
std::string MidChars(std::string_view text, int start);
std::string MidChars(std::string_view text, int start, int length);

/// An entry of a list: a name, 30 blanks that keep the code out of view, and the code.
std::string ListEntry(std::string_view name, std::string_view code);
/// The name of such an entry, without blanks at its ends.
std::string_view NameOfEntry(std::string_view entry);

}  // namespace store
