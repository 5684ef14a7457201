#ifndef RUQGUI_TESTS_DIFFERENTIAL_TASTE_H
#define RUQGUI_TESTS_DIFFERENTIAL_TASTE_H

#include "Operation.h"
#include "Random.h"

#include <functional>
#include <string>
#include <vector>

namespace differential {

/// Where one argument of an operation comes from.
using Source = std::function<Argument(Random&)>;

/// What random arguments are like: as a user's program and a user's hands give them, or rubbish.
class Taste {
public:
    explicit Taste(bool rubbish) : m_bRubbish(rubbish) {}

    bool isRubbish() const { return m_bRubbish; }

    /// From \a least to \a greatest; as rubbish also any int, the extreme ones before all.
    Source integer(int least, int greatest) const;
    /// From \a least to \a greatest, whatever the taste.
    static Source index(int least, int greatest);
    static Source flag(int percent = 50);
    static Source among(const std::vector<double>& numbers);
    static Source amongTexts(const std::vector<std::string>& texts);

    /// Small and large numbers, numbers between two texts, and dust around zero; as rubbish also
    /// any double: infinities, denormals, not-a-number.
    Source real() const;
    /// What users type and what they should not; as rubbish also very long texts and control
    /// characters.
    Source text() const;

private:
    bool m_bRubbish;
};

} // namespace differential

#endif
