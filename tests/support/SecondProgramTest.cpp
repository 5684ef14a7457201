#include "SecondProgram.h"

#include <gtest/gtest.h>

using support::SecondProgram;

namespace {

class SecondProgramTest : public testing::Test {
protected:
    std::string answerTo(const std::string& line) {
        m_program.writeLine(line);
        std::string answer;
        return m_program.readLine(&answer) ? answer : "(it has ended)";
    }

    SecondProgram m_program{'"' + std::string(ANSWERER) + '"', SecondProgram::eErrorsHidden};
};

TEST_F(SecondProgramTest, AnswersLineByLine) {
    EXPECT_EQ(answerTo("one"), "one");
    EXPECT_EQ(answerTo(""), "");
    EXPECT_EQ(answerTo("caf\xc3\xa9 \"x\"  "), "caf\xc3\xa9 \"x\"  ");
    EXPECT_TRUE(m_program.endsWell());
}

TEST_F(SecondProgramTest, LongLinesComeWhole) {
    const std::string line(1000000, 'x');
    EXPECT_EQ(answerTo(line), line);
}

TEST_F(SecondProgramTest, EndIsSeenInPlaceOfAnAnswer) {
    EXPECT_EQ(answerTo("fail"), "(it has ended)");
    EXPECT_EQ(answerTo("nobody hears this"), "(it has ended)");
    EXPECT_FALSE(m_program.endsWell());
}

TEST_F(SecondProgramTest, CrashIsSeenAsABadEnd) {
    EXPECT_EQ(answerTo("crash"), "(it has ended)");
    EXPECT_FALSE(m_program.endsWell());
}

// Under wine, the system calls that end a good one.
TEST_F(SecondProgramTest, FullStackIsSeenAsAnEnd) {
    EXPECT_EQ(answerTo("recurse for ever"), "(it has ended)");
}

TEST_F(SecondProgramTest, HalfALineIsNoAnswer) {
    EXPECT_EQ(answerTo("break off"), "(it has ended)");
    EXPECT_TRUE(m_program.endsWell());
}

// Else each would keep the others' input open, and wait for ever.
TEST_F(SecondProgramTest, SeveralEndInTheOrderOfTheirBeginning) {
    SecondProgram later('"' + std::string(ANSWERER) + '"');
    EXPECT_EQ(answerTo("one"), "one");
    EXPECT_TRUE(m_program.endsWell());
    EXPECT_TRUE(later.endsWell());
}

} // namespace
