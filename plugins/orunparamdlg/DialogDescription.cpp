#include "DialogDescription.h"

#include "MapReader.h"

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cmath>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValueVector.h>
#include <set>

namespace autodlg {

namespace {

const char* const c_sGroup = "group";
const char* const c_sAllFiles = "All files (*)";
const int c_nMaxDecimals = 15; // a double has no more

void demandInt(long number, const Subject& subject) {
    if (number < INT_MIN || number > INT_MAX)
        subject.refuse("must be between " + shown(static_cast<long>(INT_MIN)) + " and " +
                       shown(static_cast<long>(INT_MAX)) + ", not " + shown(number));
}

void demandFinite(double number, const Subject& subject) {
    if (!std::isfinite(number))
        subject.refuse("must be finite, not " + shown(number));
}

template <class Number>
void demandOrder(Number min, Number max, const Subject& subject) {
    if (min > max)
        subject.part("min").refuse("must not be above \"max\", which is " + shown(max) +
                                   ", but is " + shown(min));
}

Kind readInteger(MapReader& map) {
    StIntegerKind kind = {map.whole("min", INT_MIN), map.whole("max", INT_MAX),
                          map.whole("step", 1), map.text("unit", "")};
    const Subject& subject = map.subject();
    demandInt(kind.min, subject.part("min"));
    demandInt(kind.max, subject.part("max"));
    demandInt(kind.step, subject.part("step"));
    demandOrder(kind.min, kind.max, subject);
    if (kind.step < 1)
        subject.part("step").refuse("must be at least 1, not " + shown(kind.step));
    return kind;
}

std::optional<int> readDecimals(MapReader& map) {
    if (!map.has("decimals"))
        return std::nullopt;
    const long decimals = map.whole("decimals", 0);
    if (decimals < 0 || decimals > c_nMaxDecimals)
        map.subject()
            .part("decimals")
            .refuse("must be between 0 and " + shown(static_cast<long>(c_nMaxDecimals)) + ", not " +
                    shown(decimals));
    return static_cast<int>(decimals);
}

/// A one in the last decimal.
double smallestStep(int decimals) {
    return 1.0 / std::pow(10.0, decimals);
}

void demandStep(const StNumberKind& kind, const Subject& step) {
    demandFinite(kind.step, step);
    if (kind.step <= 0)
        step.refuse("must be above 0, not " + shown(kind.step));
    if (kind.decimals && kind.step < smallestStep(*kind.decimals))
        step.refuse("is too small to show with so many decimals: " + shown(kind.step));
}

Kind readNumber(MapReader& map) {
    StNumberKind kind;
    kind.min = map.number("min", -DBL_MAX);
    kind.max = map.number("max", DBL_MAX);
    kind.decimals = readDecimals(map);
    kind.step = map.number("step", kind.decimals ? smallestStep(*kind.decimals) : 1.0);
    kind.unit = map.text("unit", "");
    const Subject& subject = map.subject();
    demandFinite(kind.min, subject.part("min"));
    demandFinite(kind.max, subject.part("max"));
    demandOrder(kind.min, kind.max, subject);
    demandStep(kind, subject.part("step"));
    return kind;
}

Kind readRange(MapReader& map) {
    map.demandKey("min");
    map.demandKey("max");
    const StRangeKind kind = {map.whole("min", 0), map.whole("max", 0)};
    const Subject& subject = map.subject();
    demandInt(kind.min, subject.part("min"));
    demandInt(kind.max, subject.part("max"));
    demandOrder(kind.min, kind.max, subject);
    if (static_cast<long long>(kind.max) - kind.min > INT_MAX)
        subject.part("max").refuse("must be at most " + shown(static_cast<long>(INT_MAX)) +
                                   " above \"min\"");
    return kind;
}

Kind readPlainText(MapReader&) {
    return StTextKind();
}

template <StFileKind::EnMode mode>
Kind readFile(MapReader& map) {
    StFileKind kind = {mode, map.text("filter", c_sAllFiles), map.flag("required", false)};
    if (mode != StFileKind::eSaveFile)
        return kind;
    map.demandKey("filter");
    // The save dialog appends the extension of the first pattern, and has no answer without one.
    const std::size_t star = kind.filter.find('*');
    if (star == std::string::npos || kind.filter.compare(star, 2, "*.") != 0)
        map.subject().part("filter").refuse("must begin its patterns with one such as \"*.tif\"");
    return kind;
}

void demandDifferent(const Texts& choices, const Subject& subject) {
    std::set<std::string> seen;
    for (const std::string& choice : choices) {
        if (!seen.insert(choice).second)
            subject.refuse("must differ, but \"" + choice + "\" is there twice");
    }
}

Kind readChoice(MapReader& map) {
    map.demandKey("choices");
    StChoiceKind kind;
    kind.choices = map.texts("choices", {});
    kind.labels = map.texts("labels", kind.choices);
    const Subject choices = map.subject().part("choices");
    if (kind.choices.empty())
        choices.refuse("must not be empty");
    demandDifferent(kind.choices, choices);
    if (kind.labels.size() != kind.choices.size())
        map.subject().part("labels").refuse("must be as many as the choices");
    return kind;
}

Kind readSwitch(MapReader&) {
    return StSwitchKind();
}

Kind readColor(MapReader&) {
    return StColorKind();
}

struct StKindReader {
    const char* name;
    Kind (*read)(MapReader& map);
};

const StKindReader c_kinds[] = {
    {"integer", readInteger},
    {"number", readNumber},
    {"range", readRange},
    {"text", readPlainText},
    {"open file", readFile<StFileKind::eOpenFile>},
    {"open files", readFile<StFileKind::eOpenFiles>},
    {"save file", readFile<StFileKind::eSaveFile>},
    {"choice", readChoice},
    {"switch", readSwitch},
    {"color", readColor},
};

const StKindReader& kindReader(const std::string& name, const Subject& subject) {
    std::string known;
    for (const StKindReader& reader : c_kinds) {
        if (name == reader.name)
            return reader;
        known += std::string("\"") + reader.name + "\", ";
    }
    subject.refuse("must be one of " + known + '"' + c_sGroup + "\", not \"" + name + '"');
}

/// Where an entry stands in the description.
struct StPlace {
    Texts path;           ///< The keys of the groups around it.
    std::string location; ///< The names of the groups around it, with a slash behind each.
    bool advanced;        ///< A group around it is.
    int depth;            ///< The number of groups around it.
};

class Parser {
public:
    StDialog parse(const TEVU::CValue* description) {
        if (!description)
            Subject("\"dialog\"").refuse("is missing");
        const Subject subject("\"dialog\"");
        MapReader map(toMap(*description, subject), subject);
        m_dialog.form.title = map.text("title", "Parameters");
        readMembers(map, StPlace{{}, {}, false, 0}, m_dialog.form);
        map.refuseOtherKeys("a dialog");
        return std::move(m_dialog);
    }

private:
    void readMembers(MapReader& map, const StPlace& place, StGroup& group) {
        map.demandKey("entries");
        const TEVU::CValueVector& entries = map.vector("entries");
        for (const TEVU::CValue_Key& index : entries.Keys())
            readMember(*entries.Entry(index, true), place, "#" + index.String(), group);
    }

    void readMember(const TEVU::CValue& entry, StPlace place, const std::string& number,
                    StGroup& group) {
        const Subject unnamed("entry \"" + place.location + number + '"');
        const auto& values = toMap(entry, unnamed);
        const std::string key = MapReader(values, unnamed).text("key", "");
        const Subject subject = key.empty() ? unnamed : subjectOf(place.path, key);
        if (!key.empty())
            place.path.push_back(key);
        place.location += (key.empty() ? number : key) + '/';

        MapReader map(values, subject);
        map.demandKey("kind");
        const std::string kind = map.text("kind", "");
        if (kind == c_sGroup)
            group.members.push_back({readGroup(map, place)});
        else
            group.members.push_back({readParameter(map, kind, place)});
    }

    static Subject subjectOf(Texts path, const std::string& key) {
        path.push_back(key);
        return Subject("entry \"" + joined(path) + '"');
    }

    /// \param place the place of what is in the group, but for its depth
    StGroup readGroup(MapReader& map, StPlace place) {
        if (++place.depth > c_nMaxDepth)
            map.subject().refuse("lies too deep: groups can be " +
                                 shown(static_cast<long>(c_nMaxDepth)) + " deep");
        if (map.has("key")) {
            demandKey(map);
            if (m_parameters.count(place.path))
                map.subject().refuse("has the key of a parameter");
            m_groups.insert(place.path);
        }
        place.advanced = map.flag("advanced", false) || place.advanced;
        StGroup group;
        group.title = map.text("title", "");
        group.help = map.text("help", "");
        readMembers(map, place, group);
        map.refuseOtherKeys("the kind \"group\"");
        return group;
    }

    /// Appends it to the list, and gives its place there.
    std::size_t readParameter(MapReader& map, const std::string& kindName, const StPlace& place) {
        const StKindReader& reader = kindReader(kindName, map.subject().part("kind"));
        map.demandKey("key");
        demandKey(map);
        if (m_groups.count(place.path) || !m_parameters.insert(place.path).second)
            map.subject().refuse("is there twice");
        StParameter parameter = {
            place.path,           map.text("label", place.path.back()),
            map.text("help", ""), map.flag("advanced", false) || place.advanced,
            reader.read(map),     {}};
        const TEVU::CValue* const byDefault = map.value("default");
        parameter.byDefault = byDefault
                                  ? read(parameter.kind, *byDefault, map.subject().part("default"))
                                  : fallback(parameter.kind);
        map.refuseOtherKeys("the kind \"" + kindName + '"');
        m_dialog.parameters.push_back(std::move(parameter));
        return m_dialog.parameters.size() - 1;
    }

    static void demandKey(MapReader& map) {
        if (map.text("key", "").empty())
            map.subject().part("key").refuse("must not be empty");
    }

    StDialog m_dialog;
    std::set<Texts> m_parameters;
    std::set<Texts> m_groups;
};

} // namespace

std::string joined(const Texts& path) {
    std::string words;
    for (const std::string& key : path)
        words += (words.empty() ? "" : "/") + key;
    return words;
}

std::string plainLabel(const std::string& label) {
    std::string plain;
    for (std::size_t i = 0; i < label.size(); ++i) {
        if (label[i] == '&')
            ++i; // the mark; of two ampersands the second one shows
        if (i < label.size())
            plain += label[i];
    }
    if (!plain.empty() && plain.back() == ':')
        plain.pop_back();
    return plain;
}

StDialog parseDescription(const TEVU::CValue* description) {
    return Parser().parse(description);
}

} // namespace autodlg
