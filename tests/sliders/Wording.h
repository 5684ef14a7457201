#ifndef RUQGUI_TESTS_SLIDERS_WORDING_H
#define RUQGUI_TESTS_SLIDERS_WORDING_H

#include <gtest/gtest.h>
#include <qnamespace.h>
#include <qt3/Descendants.h>
#include <qt3/MetaObject.h>
#include <string>
#include <vector>

/// The words in which the tests of this room write things down.

template <class Row>
std::string nameOfRow(const testing::TestParamInfo<Row>& info) {
    return info.param.name;
}

inline std::string nameOfOrientation(const testing::TestParamInfo<Qt::Orientation>& info) {
    return info.param == Qt::Vertical ? "Vertical" : "Horizontal";
}

inline std::string nameOfMapping(const testing::TestParamInfo<bool>& info) {
    return info.param ? "Inverted" : "Plain";
}

inline std::string call(const std::string& name, int a) {
    return name + '(' + std::to_string(a) + ')';
}

inline std::string call(const std::string& name, int a, int b) {
    return name + '(' + std::to_string(a) + ", " + std::to_string(b) + ')';
}

/// Whether the objects below \a parent come in that order, whatever stands between them.
inline bool standInOrder(QObject* parent, const std::vector<QObject*>& objects) {
    std::size_t found = 0;
    for (QObject* object : qt3::descendants(parent)) {
        if (found < objects.size() && object == objects[found])
            ++found;
    }
    return found == objects.size();
}

/// Each method as "access signature".
inline std::vector<std::string> tableLines(const std::vector<qt3::Method>& table) {
    const char* const accesses[] = {"private", "protected", "public"};
    std::vector<std::string> lines;
    for (const qt3::Method& method : table)
        lines.push_back(std::string(accesses[method.access]) + ' ' + method.signature);
    return lines;
}

#endif
