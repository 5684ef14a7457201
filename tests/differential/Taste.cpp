#include "Taste.h"

#include <cstring>
#include <limits>

namespace differential {

namespace {

using Integers = std::numeric_limits<int>;
using Reals = std::numeric_limits<double>;

const int c_nRubbishPercent = 30;

Argument anyInteger(Random& random) {
    const long long anchors[] = {Integers::min(), Integers::max(), 0};
    const long long anchor = anchors[random.number(0, 2)];
    if (random.chance(30))
        return static_cast<double>(random.number(Integers::min(), Integers::max()));
    const long long near = anchor + random.number(-2, 2);
    return static_cast<double>(near < Integers::min()   ? Integers::min()
                               : near > Integers::max() ? Integers::max()
                                                        : near);
}

double anyBits(Random& random) {
    const std::uint64_t bits =
        static_cast<std::uint64_t>(random.number(0, std::numeric_limits<long long>::max()));
    double number = 0.0;
    std::memcpy(&number, &bits, sizeof number);
    return random.chance(50) ? number : -number;
}

Argument anyReal(Random& random) {
    const double known[] = {Reals::infinity(),
                            -Reals::infinity(),
                            Reals::quiet_NaN(),
                            Reals::max(),
                            Reals::lowest(),
                            Reals::min(),
                            Reals::denorm_min(),
                            -Reals::denorm_min(),
                            Reals::epsilon(),
                            -0.0,
                            1e308,
                            -1e308};
    return random.chance(60) ? random.pick(std::vector<double>(std::begin(known), std::end(known)))
                             : anyBits(random);
}

Argument usualReal(Random& random) {
    const std::vector<double> special = {
        0.0,       1.0,      -1.0, 0.1,  0.3,  1e-17, 2.3e-16,  -1e-16, 100000.5, 0.125, 2.5,
        1234567.0, 999999.5, 1e6,  -1e6, 1e-5, 1e300, 12345.65, 1e15,   0.5,      99.0,  1e22};
    switch (random.number(0, 5)) {
    case 0:
        return random.pick(special);
    case 1:
        return static_cast<double>(random.number(-20, 120)) / 10;
    case 2:
        return static_cast<double>(random.number(-200000000, 200000000)) / 1024;
    default:
        return static_cast<double>(random.number(-20, 120));
    }
}

const std::vector<std::string>& usualTexts() {
    static const std::vector<std::string> texts = {"",
                                                   " ",
                                                   "0",
                                                   "1",
                                                   "2.5",
                                                   "-3",
                                                   "1e3",
                                                   "1e",
                                                   " 7 ",
                                                   "12,5",
                                                   "abc",
                                                   "auto",
                                                   "au",
                                                   "x ",
                                                   " mm",
                                                   "mm",
                                                   "x",
                                                   "%1",
                                                   "%2 %1",
                                                   "<b>b</b>",
                                                   "a\nb",
                                                   "a\r\nb",
                                                   "\t",
                                                   "0x10",
                                                   "inf",
                                                   "nan",
                                                   "-inf",
                                                   "1e400",
                                                   "1e-400",
                                                   "+5",
                                                   "--5",
                                                   "5-",
                                                   "99.99999999",
                                                   "0.30000000000000004",
                                                   "\xc3\xa9t\xc3\xa9",
                                                   "\xc2\xb5m",
                                                   "\xe4\xb8\xad",
                                                   "&File",
                                                   "x 2.5 mm",
                                                   "x2.5mm",
                                                   "2.5 mm",
                                                   "auto ",
                                                   "100",
                                                   "1000000",
                                                   "50"};
    return texts;
}

std::string anyText(Random& random) {
    const int lengths[] = {0, 1, 2, 10, 300, 5000};
    const std::vector<std::string> pieces = {"9",
                                             "-",
                                             ".",
                                             "e",
                                             " ",
                                             "\n",
                                             "\x01",
                                             "\x7f",
                                             "\t",
                                             "%1",
                                             "\xc2\xa0",
                                             "\xf0\x9f\x98\x80",
                                             "\xe2\x80\xa8",
                                             "<a>",
                                             "&amp;",
                                             "\r"};
    const std::string& mostly = random.pick(pieces);
    std::string text;
    for (int i = lengths[random.number(0, 5)]; i > 0; --i)
        text += random.chance(70) ? mostly : random.pick(pieces);
    return text;
}

Argument usualText(Random& random) {
    if (random.chance(60))
        return random.pick(usualTexts());
    std::string number = std::to_string(random.number(-50, 200));
    if (random.chance(50))
        number += '.' + std::to_string(random.number(0, 999999));
    return number;
}

} // namespace

Source Taste::integer(int least, int greatest) const {
    const bool rubbish = m_bRubbish;
    return [=](Random& random) -> Argument {
        if (rubbish && random.chance(c_nRubbishPercent))
            return anyInteger(random);
        return static_cast<double>(random.number(least, greatest));
    };
}

Source Taste::index(int least, int greatest) {
    return [=](Random& random) -> Argument {
        return static_cast<double>(random.number(least, greatest));
    };
}

Source Taste::flag(int percent) {
    return [=](Random& random) -> Argument { return random.chance(percent) ? 1.0 : 0.0; };
}

Source Taste::among(const std::vector<double>& numbers) {
    return [=](Random& random) -> Argument { return random.pick(numbers); };
}

Source Taste::amongTexts(const std::vector<std::string>& texts) {
    return [=](Random& random) -> Argument { return random.pick(texts); };
}

Source Taste::real() const {
    const bool rubbish = m_bRubbish;
    return [=](Random& random) {
        return rubbish && random.chance(c_nRubbishPercent) ? anyReal(random) : usualReal(random);
    };
}

Source Taste::text() const {
    const bool rubbish = m_bRubbish;
    return [=](Random& random) -> Argument {
        return rubbish && random.chance(c_nRubbishPercent) ? anyText(random) : usualText(random);
    };
}

} // namespace differential
