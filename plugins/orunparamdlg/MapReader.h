#ifndef RUQGUI_ORUNPARAMDLG_MAPREADER_H
#define RUQGUI_ORUNPARAMDLG_MAPREADER_H

#include "TypedValue.h"

#include <set>
#include <string>

namespace autodlg {

/// Reads the keys of one map of a description, and knows which it was asked for.
///
/// The getters give the default where there is no such key, and complain about a value of another type.
class MapReader {
public:
    /// Both must outlive this object.
    MapReader(const TEVU::CValueMap& map, const Subject& subject);

    const Subject& subject() const { return m_subject; }

    const TEVU::CValue* value(const std::string& key); ///< Null when there is none.
    bool has(const std::string& key) { return value(key) != nullptr; }
    bool flag(const std::string& key, bool byDefault);
    long whole(const std::string& key, long byDefault);
    double number(const std::string& key, double byDefault);
    std::string text(const std::string& key, const std::string& byDefault);
    Texts texts(const std::string& key, const Texts& byDefault);
    const TEVU::CValueVector& vector(const std::string& key); ///< It must be there.

    void demandKey(const std::string& key); ///< Complains when there is no such key.

    /// Complains about a key that none of the above has asked for: it would go unseen.
    /// \param owner whose keys these are, in words
    void refuseOtherKeys(const std::string& owner) const;

private:
    template <class Type>
    Type read(Type (*convert)(const TEVU::CValue&, const Subject&), const std::string& key,
              const Type& byDefault);

    const TEVU::CValueMap& m_map;
    const Subject& m_subject;
    std::set<std::string> m_asked;
};

} // namespace autodlg

#endif
