#ifndef RUQGUI_CVALUEMAPFILEVERSIONHANDLING_H
#define RUQGUI_CVALUEMAPFILEVERSIONHANDLING_H

#include <qt3/Export.h>
#include <string>

namespace TEVU {

class CValueMap;

/// The format stamp of a value-map file: what kind of file it is, and which version of its format.
///
/// Stamp a map before it is written, and check one that has been read:
/// \code
/// const TEVU::CValueMapFileVersionHandling format("scan:settings:1", "1.2");
/// format.AddIdVersion(map); // then write it
/// // ...
/// if (!format.VerifyLoadedMapWithErrorMessageBox(map, path, "settings", "MyProgram"))
///     return; // the user has been told
/// \endcode
/// The stamp is two strings in the map, under "id" and "version".
///
/// Identifiers with two or more colons belong to a family: what stands before the first colon without
/// the character just before it ("abc:x:1" is of the family "ab"). An identifier with fewer colons is
/// its own family. Only a file of the same family can be loaded in place of the expected one.
///
/// Versions are decimal numbers: 1.10 is older than 1.2. A version text that is no number counts as 0.
///
/// GUI thread only, where boxes are shown.
struct RUQGUI_EXPORT CValueMapFileVersionHandling {
    CValueMapFileVersionHandling(const std::string& identifier, const std::string& version);
    CValueMapFileVersionHandling(const CValueMapFileVersionHandling& other);
    CValueMapFileVersionHandling& operator=(const CValueMapFileVersionHandling& other);
    ~CValueMapFileVersionHandling();

    void AddIdVersion(CValueMap& map) const;    ///< Replaces a stamp that is there.
    void RemoveIdVersion(CValueMap& map) const; ///< Leaves a map without a stamp as it is.

    /// Whether the map has an identifier. One that is no string is none.
    bool IsIdAvailable(const CValueMap& map) const;

    /// The map's identifier. \throws CException when it has none, as IsIdOk() and IsIdCompatible() do.
    static std::string GetId(const CValueMap& map);

    bool IsIdOk(const CValueMap& map) const;         ///< The same identifier.
    bool IsIdCompatible(const CValueMap& map) const; ///< An identifier of the same family.

    /// Whether the map was written in a newer version of the format. Without a version it was not.
    bool IsAFutureFormatVersion(const CValueMap& map) const;

    /// Checks a map that was read from a file, and removes its stamp if it may be loaded. A map without
    /// an identifier passes as it is. For each of these a box is shown, with the main widget as its
    /// parent, and its text is written to standard error, after \a context and a colon:
    /// - a file of another family: refused;
    /// - another file of the same family: the user may load it anyway, or cancel, as Escape does;
    /// - a newer version: a notice.
    /// \param fileName and \a formatName are for the texts; null counts as empty, as for \a context
    /// \return false when the file must not be loaded; the map is then as it was.
    bool VerifyLoadedMapWithErrorMessageBox(CValueMap& map, const char* fileName,
                                            const char* formatName, const char* context);

    std::string m_sIdentifier; ///< What this program writes and expects.
    std::string m_sVersion;    ///< What this program writes, a decimal number.
    std::string m_sFamily;     ///< The part of the identifier that decides about compatibility.
    std::string m_sRemainder;  ///< The rest of the identifier.
};

} // namespace TEVU

#endif
