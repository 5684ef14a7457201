#include "MapReader.h"

#include <ruqlib2core/CValueMap.h>

namespace autodlg {

MapReader::MapReader(const TEVU::CValueMap& map, const Subject& subject)
    : m_map(map), m_subject(subject) {}

const TEVU::CValue* MapReader::value(const std::string& key) {
    m_asked.insert(key);
    return m_map.Entry(key, false);
}

bool MapReader::flag(const std::string& key, bool byDefault) {
    return read(toBool, key, byDefault);
}

long MapReader::whole(const std::string& key, long byDefault) {
    return read(toLong, key, byDefault);
}

double MapReader::number(const std::string& key, double byDefault) {
    return read(toDouble, key, byDefault);
}

std::string MapReader::text(const std::string& key, const std::string& byDefault) {
    return read(toText, key, byDefault);
}

Texts MapReader::texts(const std::string& key, const Texts& byDefault) {
    return read(toTexts, key, byDefault);
}

const TEVU::CValueVector& MapReader::vector(const std::string& key) {
    demandKey(key);
    return toVector(*value(key), m_subject.part(key));
}

void MapReader::demandKey(const std::string& key) {
    if (!has(key))
        m_subject.part(key).refuse("is missing");
}

void MapReader::refuseOtherKeys(const std::string& owner) const {
    for (const TEVU::CValue_Key& key : m_map.Keys()) {
        if (!m_asked.count(key.String()))
            m_subject.part(key.String()).refuse("is no key of " + owner);
    }
}

template <class Type>
Type MapReader::read(Type (*convert)(const TEVU::CValue&, const Subject&), const std::string& key,
                     const Type& byDefault) {
    const TEVU::CValue* const found = value(key);
    return found ? convert(*found, m_subject.part(key)) : byDefault;
}

} // namespace autodlg
