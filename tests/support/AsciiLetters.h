#ifndef RUQGUI_TESTS_SUPPORT_ASCIILETTERS_H
#define RUQGUI_TESTS_SUPPORT_ASCIILETTERS_H

namespace support {

/// As tolower and toupper change it in the C locale: in others they change other letters, or, in a
/// Turkish one, leave the letter i alone.
inline char lowerLetter(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

inline char upperLetter(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

} // namespace support

#endif
