#ifndef RUQLIB2IMAGE_HEADERKEYS_H
#define RUQLIB2IMAGE_HEADERKEYS_H

namespace TEVU {

/// The keys of the well-known header entries. They are part of the files that are written.
inline constexpr const char* c_sKeySpacing = "spacing"; ///< CValueVector of three CValueDouble
inline constexpr const char* c_sKeyCreator = "creator"; ///< CValueString
inline constexpr const char* c_sKeyDescription = "description"; ///< CValueString
inline constexpr const char* c_sKeyHistory = "history";         ///< CValueString

} // namespace TEVU

#endif
