#include <qt3/SignalTap.h>

#include "TapSpecimen.h"

#include <gtest/gtest.h>
#include <memory>
#include <qapplication.h>
#include <qpushbutton.h>
#include <string>
#include <vector>

using Lines = std::vector<std::string>;

namespace {

qt3::SignalTap::NamedHandler into(Lines& lines) {
    return [&lines](const std::string& signal, const std::string& arguments) {
        lines.push_back(signal + '(' + arguments + ')');
    };
}

qt3::SignalTap::Handler argumentsInto(Lines& lines) {
    return [&lines](const std::string& arguments) { lines.push_back(arguments); };
}

} // namespace

TEST(SignalTap, WritesArgumentsAsText) {
    TapSpecimen specimen;
    Lines lines;
    qt3::SignalTap tap;
    tap.listenToAll(&specimen, into(lines));

    specimen.emitAll();

    EXPECT_EQ(lines,
              (Lines{"nothing()", "whole(-7)", "yes(true)", "yes(false)", "pair(1, 2)", "real(0.1)",
                     "real(1e+100)", "real(-0)", "real(3)", "text(\"a \"b\" line\\nnext\")",
                     "text(\"\")", "object(null)", "object(pointer)"}));
}

TEST(SignalTap, TextIsUtf8) {
    TapSpecimen specimen;
    Lines lines;
    qt3::SignalTap tap;
    tap.listen(&specimen, "text(const QString&)", argumentsInto(lines));

    specimen.emitText(QString(QChar(0xe9)));

    EXPECT_EQ(lines, Lines{"\"\xc3\xa9\""});
}

TEST(SignalTap, UnknownTypesAreAQuestionMark) {
    TapSpecimen specimen;
    Lines lines;
    qt3::SignalTap tap;
    EXPECT_TRUE(tap.listen(&specimen, "unknown(const QColor&)", argumentsInto(lines)));

    specimen.emitUnknown();

    EXPECT_EQ(lines, Lines{"?"});
}

TEST(SignalTap, ListensToOneSignalAmongThemAll) {
    TapSpecimen specimen;
    Lines lines;
    qt3::SignalTap tap;
    EXPECT_TRUE(tap.listen(&specimen, "pair( int, int )", argumentsInto(lines)));

    specimen.emitAll();

    EXPECT_EQ(lines, Lines{"1, 2"});
}

TEST(SignalTap, KnowsInheritedSignalsByTheirSignature) {
    QPushButton button(nullptr);
    Lines lines;
    qt3::SignalTap tap;
    EXPECT_TRUE(tap.listen(&button, "clicked()", argumentsInto(lines)));

    button.animateClick();
    while (lines.empty())
        qApp->processEvents();

    EXPECT_EQ(lines, Lines{""});
}

TEST(SignalTap, LeavesInheritedSignalsOutOfAll) {
    Lines lines;
    qt3::SignalTap tap;
    {
        TapSpecimen specimen;
        tap.listenToAll(&specimen, into(lines));
    }

    EXPECT_EQ(lines, Lines{}); // not even destroyed()
}

TEST(SignalTap, UnknownSignalIsRefused) {
    TapSpecimen specimen;
    qt3::SignalTap tap;

    EXPECT_FALSE(tap.listen(&specimen, "pair(int)", [](const std::string&) {}));
    EXPECT_FALSE(tap.listen(&specimen, "other()", [](const std::string&) {}));
}

TEST(SignalTap, KeepsTheOrderOfSeveralSenders) {
    TapSpecimen first;
    TapSpecimen second;
    Lines lines;
    qt3::SignalTap tap;
    tap.listen(&first, "whole(int)",
               [&](const std::string& it) { lines.push_back("first " + it); });
    tap.listen(&second, "whole(int)",
               [&](const std::string& it) { lines.push_back("second " + it); });

    second.emitWhole(1);
    first.emitWhole(2);
    second.emitWhole(3);

    EXPECT_EQ(lines, (Lines{"second 1", "first 2", "second 3"}));
}

TEST(SignalTap, EndsWithItself) {
    TapSpecimen specimen;
    Lines lines;
    auto tap = std::make_unique<qt3::SignalTap>();
    tap->listenToAll(&specimen, into(lines));

    tap.reset();
    specimen.emitAll();

    EXPECT_EQ(lines, Lines{});
}

TEST(SignalTap, OutlivesTheSender) {
    Lines lines;
    qt3::SignalTap tap;
    {
        TapSpecimen gone;
        tap.listenToAll(&gone, into(lines));
    }
    TapSpecimen specimen;
    tap.listen(&specimen, "whole(int)", argumentsInto(lines));

    specimen.emitWhole(5);

    EXPECT_EQ(lines, Lines{"5"});
}

TEST(SignalTap, HandlerMayListenToMore) {
    TapSpecimen specimen;
    Lines lines;
    qt3::SignalTap tap;
    tap.listen(&specimen, "nothing()", [&](const std::string&) {
        for (int i = 0; i < 100; ++i)
            tap.listen(&specimen, "yes(bool)", [](const std::string&) {});
        tap.listen(&specimen, "whole(int)", argumentsInto(lines));
    });

    specimen.emitAll();

    EXPECT_EQ(lines, Lines{"-7"});
}
