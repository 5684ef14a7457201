#include <CFileLineWidget.h>

#include "FileDialogTest.h"

#include <Events.h>
#include <Looks.h>
#include <Recorder.h>
#include <memory>
#include <ostream>
#include <qlineedit.h>
#include <qpushbutton.h>
#include <qt3/Layout.h>
#include <qt3/MetaObject.h>
#include <qt3/WidgetFunctions.h>
#include <ruqlib2core/CException.h>

using TEVU::CFileLineWidget;

namespace {

const char* const c_images = "Images (*.png *.tif)";

/// Lets the protected slot be called.
class Line : public CFileLineWidget {
public:
    explicit Line(EnDialogMode mode, const QString& fileName = QString(), QWidget* parent = nullptr,
                  const QString& filter = c_images)
        : CFileLineWidget(fileName, filter, mode, parent, "line") {}
    explicit Line(const CFileLineWidget& other) : CFileLineWidget(other) {}
    Line(const Line&) = default;
    Line& operator=(const Line&) = default;

    using CFileLineWidget::SlotOpenFileDialog;

    std::string text() const { return support::text(filename()); }
};

std::vector<QWidget*> childrenOf(QWidget* widget) {
    std::vector<QWidget*> children;
    for (QObject* object : support::descendants(widget)) {
        QWidget* child = dynamic_cast<QWidget*>(object);
        if (child && child->parentWidget() == widget)
            children.push_back(child);
    }
    return children;
}

class CFileLineWidgetTest : public FileDialogTest {
protected:
    static QLineEdit* field(QWidget* line) { return support::child<QLineEdit>(line); }
    static QPushButton* button(QWidget* line) { return support::child<QPushButton>(line); }

    static void click(QWidget* line) { support::mouseClick(button(line)); }

    static constexpr auto eNoMode = static_cast<CFileLineWidget::EnDialogMode>(3);
};

TEST_F(CFileLineWidgetTest, HasAFieldAndThenAButtonWithoutNames) {
    Line line(CFileLineWidget::eOpenFile);

    const std::vector<QWidget*> children = childrenOf(&line);

    ASSERT_EQ(children.size(), 2u);
    EXPECT_EQ(children[0], field(&line));
    EXPECT_EQ(children[1], button(&line));
    const qt3::LineEdit unnamed(nullptr);
    EXPECT_EQ(qt3::name(children[0]), qt3::name(&unnamed));
    EXPECT_EQ(qt3::name(children[1]), qt3::name(&unnamed));
    EXPECT_EQ(support::text(button(&line)->text()), "...");
}

TEST_F(CFileLineWidgetTest, HasItsNameAndParent) {
    QWidget parent(nullptr);
    const CFileLineWidget line("", c_images, CFileLineWidget::eOpenFile, &parent, "input");

    EXPECT_EQ(qt3::name(&line), "input");
    EXPECT_EQ(line.parentWidget(), &parent);
}

TEST_F(CFileLineWidgetTest, LaysThemOutSideBySideWithoutMargin) {
    QWidget parent(nullptr);
    Line line(CFileLineWidget::eOpenFile);
    const qt3::HBoxLayout byDefault(&parent, 0, -1);

    QLayout* layout = line.layout();

    ASSERT_NE(dynamic_cast<QHBoxLayout*>(layout), nullptr);
    EXPECT_EQ(support::margin(layout), 0);
    EXPECT_EQ(layout->spacing(), byDefault.spacing());
}

TEST_F(CFileLineWidgetTest, FieldTakesTheRoomThatTheButtonLeaves) {
    Line line(CFileLineWidget::eOpenFile);
    line.resize(400, 40);
    support::show(&line);

    const QRect fieldAt = field(&line)->geometry();
    const QRect buttonAt = button(&line)->geometry();

    EXPECT_EQ(fieldAt.left(), 0);
    EXPECT_EQ(buttonAt.right(), 399);
    EXPECT_EQ(fieldAt.right() + 1 + line.layout()->spacing(), buttonAt.left());
    EXPECT_GT(fieldAt.width(), buttonAt.width());
}

TEST_F(CFileLineWidgetTest, TellsItsClassOneProtectedSlotAndNoSignal) {
    const CFileLineWidget line("", c_images, CFileLineWidget::eOpenFile, nullptr, "line");

    const std::vector<qt3::Method> slotsOfLine = qt3::slotTable(&line);

    EXPECT_EQ(qt3::className(&line), "TEVU::CFileLineWidget");
    EXPECT_EQ(qt3::superClassName(&line), "QWidget");
    ASSERT_EQ(slotsOfLine.size(), 1u);
    EXPECT_EQ(slotsOfLine[0].signature, "SlotOpenFileDialog()");
    EXPECT_EQ(slotsOfLine[0].access, qt3::Method::Protected);
    EXPECT_TRUE(qt3::signalTable(&line).empty());
    EXPECT_EQ(qt3::furtherEntries(&line), 0);
}

TEST_F(CFileLineWidgetTest, ModesHaveTheirNumbers) {
    EXPECT_EQ(CFileLineWidget::eOpenFile, 0);
    EXPECT_EQ(CFileLineWidget::eSaveFile, 1);
    EXPECT_EQ(CFileLineWidget::eOpenFiles, 2);
}

TEST_F(CFileLineWidgetTest, ShowsItsFirstText) {
    Line line(CFileLineWidget::eOpenFile, "/data/a.png");

    EXPECT_EQ(support::text(field(&line)->text()), "/data/a.png");
    EXPECT_EQ(line.text(), "/data/a.png");
}

TEST_F(CFileLineWidgetTest, TextIsThatOfTheField) {
    Line line(CFileLineWidget::eOpenFile, "/data/a.png");
    field(&line)->setText("typed");
    EXPECT_EQ(line.text(), "typed");

    line.setFilename(toText("caf\xc3\xa9"));

    EXPECT_EQ(support::text(field(&line)->text()), "caf\xc3\xa9");
    EXPECT_EQ(line.text(), "caf\xc3\xa9");
}

TEST_F(CFileLineWidgetTest, NewTextIsToldByTheField) {
    Line line(CFileLineWidget::eOpenFile, "a");
    support::Recorder recorder;
    recorder.tap(field(&line), "textChanged(const QString&)", "field");

    line.setFilename("b");

    EXPECT_EQ(recorder.take(), support::Lines{"field.textChanged(\"b\")"});
}

TEST_F(CFileLineWidgetTest, OpensOneFileWhereTheLastOneWas) {
    Line line(CFileLineWidget::eOpenFile, "typed");
    remember("loadingdir", dir.makeFolder("images"));
    support::FileRequest expected = openIn(dir.path("images"));
    expected.filters = {c_images};
    user.expectFileDialog(expected).under(&line).choose(makeFile("b/scan.png"));

    click(&line);

    EXPECT_EQ(line.text(), dir.path("b/scan.png"));
    EXPECT_EQ(remembered().back(), "loadingdir=" + dir.path("b"));
}

TEST_F(CFileLineWidgetTest, OpeningOneFileIsNoMatterOfTheFieldsText) {
    Line line(CFileLineWidget::eOpenFile, toText(makeFile("typed/a.png")));
    user.expectFileDialog(openIn(home())).cancel();

    click(&line);

    EXPECT_EQ(line.text(), dir.path("typed/a.png"));
}

TEST_F(CFileLineWidgetTest, ChosenPathIsToldByTheFieldOnce) {
    Line line(CFileLineWidget::eOpenFile, "typed");
    support::Recorder recorder;
    recorder.tap(field(&line), "textChanged(const QString&)", "field");
    user.expectFileDialog({}).choose(makeFile("a.png"));

    click(&line);

    EXPECT_EQ(recorder.take(), support::Lines{"field.textChanged(\"" + dir.path("a.png") + "\")"});
}

TEST_F(CFileLineWidgetTest, OpensSeveralFilesAndJoinsThemByCommas) {
    Line line(CFileLineWidget::eOpenFiles, "typed");
    remember("loadingdir", dir.makeFolder("images"));
    support::FileRequest expected = openSeveralIn(dir.path("images"));
    expected.filters = {c_images};
    const Lines files{makeFile("c.png"), makeFile("a.tif"), makeFile("b.png")};
    user.expectFileDialog(expected).under(&line).chooseSeveral(files);

    click(&line);

    EXPECT_EQ(line.text(), files[0] + ',' + files[1] + ',' + files[2]);
}

TEST_F(CFileLineWidgetTest, OneOfSeveralFilesHasNoComma) {
    Line line(CFileLineWidget::eOpenFiles);
    user.expectFileDialog({}).chooseSeveral({makeFile("a.png")});

    click(&line);

    EXPECT_EQ(line.text(), dir.path("a.png"));
}

TEST_F(CFileLineWidgetTest, CommasInPathsStayAsTheyAre) {
    Line line(CFileLineWidget::eOpenFiles);
    const Lines files{makeFile("a,b.png"), makeFile(",c.png")};
    user.expectFileDialog({}).chooseSeveral(files);

    click(&line);

    EXPECT_EQ(line.text(), files[0] + ',' + files[1]);
}

TEST_F(CFileLineWidgetTest, EmptyFieldProposesUntitledForSaving) {
    Line line(CFileLineWidget::eSaveFile);
    support::FileRequest expected{
        "savedialog", "Specify a filename...", home(), "Untitled.png", {c_images}, "save"};
    user.expectFileDialog(expected).under(&line).choose(dir.path("a.png"));

    click(&line);

    EXPECT_EQ(line.text(), dir.path("a.png"));
    EXPECT_EQ(remembered().back(), "savingdir=" + dir.path());
}

TEST_F(CFileLineWidgetTest, AbsolutePathInTheFieldIsProposedForSaving) {
    Line line(CFileLineWidget::eSaveFile);
    dir.makeFolder("results");
    field(&line)->setText(toText(dir.path("results/scan.tif")));
    user.expectFileDialog({{}, {}, dir.path("results"), "scan.tif"}).accept();

    click(&line);

    EXPECT_EQ(line.text(), dir.path("results/scan.tif"));
}

TEST_F(CFileLineWidgetTest, TypedNameIsProposedForSavingWithItsExtension) {
    Line line(CFileLineWidget::eSaveFile, "scan");
    user.expectFileDialog({{}, {}, home(), "scan.png"}).accept();

    click(&line);

    EXPECT_EQ(line.text(), home() + "/scan.png");
}

TEST_F(CFileLineWidgetTest, SavingOverAFileSpeaksOfOverwriting) {
    Line line(CFileLineWidget::eSaveFile, "scan");
    user.expectFileDialog({}).choose(makeFile("a.png"));
    user.expectWarning({"Overwrite File", "Overwrite\n'" + dir.path("a.png") + "'?"})
        .under(&line)
        .answer("Yes");

    click(&line);

    EXPECT_EQ(line.text(), dir.path("a.png"));
}

TEST_F(CFileLineWidgetTest, TextIsProposedAsItsBytesAre) {
    Line line(CFileLineWidget::eSaveFile, toText("caf\xc3\xa9"));
    user.expectFileDialog({{}, {}, home(), "caf\xc3\xa9.png"}).cancel();

    click(&line);
}

TEST_F(CFileLineWidgetTest, FilterPassesAsItsBytesAre) {
    const QString filter = toText("Gr\xc3\xb6\xc3\x9f"
                                  "e (*.png)");
    Line line(CFileLineWidget::eOpenFile, QString(), nullptr, filter);
    support::FileRequest expected = openIn(home());
    expected.filters = {support::text(filter)};
    user.expectFileDialog(expected).cancel();

    click(&line);
}

TEST_F(CFileLineWidgetTest, SavingWithAMalformedFilterThrowsAndLeavesTheText) {
    Line line(CFileLineWidget::eSaveFile, "typed", nullptr, "All (*)");

    EXPECT_THROW(line.SlotOpenFileDialog(), TEVU::CException);

    EXPECT_EQ(line.text(), "typed");
}

struct ModeRow {
    const char* name;
    CFileLineWidget::EnDialogMode mode;
};

void PrintTo(const ModeRow& row, std::ostream* out) {
    *out << row.name;
}

class CFileLineWidgetModeTest : public CFileLineWidgetTest,
                                public testing::WithParamInterface<ModeRow> {};

TEST_P(CFileLineWidgetModeTest, CancelKeepsTheTypedText) {
    Line line(GetParam().mode, "first");
    field(&line)->setText("typed");
    support::Recorder recorder;
    recorder.tap(field(&line), "textChanged(const QString&)", "field");
    user.expectFileDialog({}).cancel();

    click(&line);

    EXPECT_EQ(line.text(), "typed");
    EXPECT_EQ(recorder.take(), support::Lines());
    EXPECT_EQ(remembered(), Lines());
}

TEST_P(CFileLineWidgetModeTest, CancelKeepsAnEarlierChoice) {
    Line line(GetParam().mode);
    user.expectFileDialog({}).choose(makeFile("a.png"));
    if (GetParam().mode == CFileLineWidget::eSaveFile)
        user.expectWarning({}).answer("Yes");
    click(&line);
    user.expectFileDialog({}).escape();

    click(&line);

    EXPECT_EQ(line.text(), dir.path("a.png"));
}

INSTANTIATE_TEST_SUITE_P(In, CFileLineWidgetModeTest,
                         testing::Values(ModeRow{"OpenFile", CFileLineWidget::eOpenFile},
                                         ModeRow{"SaveFile", CFileLineWidget::eSaveFile},
                                         ModeRow{"OpenFiles", CFileLineWidget::eOpenFiles}),
                         [](const testing::TestParamInfo<ModeRow>& row) {
                             return std::string(row.param.name);
                         });

TEST_F(CFileLineWidgetTest, AnyOtherModeDoesNothing) {
    Line line(eNoMode, "typed");

    click(&line);

    EXPECT_EQ(user.log(), Lines());
    EXPECT_EQ(line.text(), "typed");
}

using CFileLineWidgetCopyTest = CFileLineWidgetTest;

TEST_F(CFileLineWidgetCopyTest, HasTheSameParentAndNameAndNoChildrenOfItsOwn) {
    QWidget parent(nullptr);
    Line original(CFileLineWidget::eOpenFile, "a", &parent);

    Line copy(original);

    EXPECT_EQ(copy.parentWidget(), &parent);
    EXPECT_EQ(qt3::name(&copy), "line");
    EXPECT_TRUE(childrenOf(&copy).empty());
    EXPECT_EQ(childrenOf(&original).size(), 2u);
}

TEST_F(CFileLineWidgetCopyTest, SharesTheFieldOfItsOriginal) {
    Line original(CFileLineWidget::eOpenFile, "a");
    Line copy(original);
    EXPECT_EQ(copy.text(), "a");

    copy.setFilename("b");

    EXPECT_EQ(original.text(), "b");
}

TEST_F(CFileLineWidgetCopyTest, HasModeAndFilterOfItsOriginal) {
    Line original(CFileLineWidget::eSaveFile, "scan", nullptr, "Surfaces (*.stl.gz)");
    Line copy(original);
    user.expectFileDialog({"savedialog", {}, {}, "scan.stl.gz", {"Surfaces (*.stl.gz)"}})
        .under(&copy)
        .choose(dir.path("a.stl.gz"));

    copy.SlotOpenFileDialog();

    EXPECT_EQ(original.text(), dir.path("a.stl.gz"));
}

TEST_F(CFileLineWidgetCopyTest, ButtonGoesOnBelongingToTheOriginal) {
    Line original(CFileLineWidget::eOpenFile, "a");
    const Line copy(original);
    user.expectFileDialog({}).under(&original).cancel();

    click(&original);

    EXPECT_EQ(user.log().size(), 1u);
}

TEST_F(CFileLineWidgetCopyTest, MayGoBeforeItsOriginal) {
    Line original(CFileLineWidget::eOpenFile, "a");
    { const Line copy(original); }
    user.expectFileDialog({}).choose(makeFile("a.png"));

    click(&original);

    EXPECT_EQ(original.text(), dir.path("a.png"));
}

TEST_F(CFileLineWidgetCopyTest, MayOutliveItsOriginal) {
    auto original = std::make_unique<Line>(CFileLineWidget::eOpenFile, "a");
    const Line copy(*original);

    original.reset();

    EXPECT_TRUE(childrenOf(const_cast<Line*>(&copy)).empty());
}

TEST_F(CFileLineWidgetCopyTest, ByAssignmentTakesFieldModeAndFilter) {
    QWidget parent(nullptr);
    Line original(CFileLineWidget::eSaveFile, "scan", nullptr, "Surfaces (*.stl.gz)");
    Line target(CFileLineWidget::eOpenFile, "own", &parent);

    target = original;

    EXPECT_EQ(target.text(), "scan");
    EXPECT_EQ(target.parentWidget(), &parent);
    EXPECT_EQ(childrenOf(&target).size(), 2u);
    EXPECT_EQ(support::text(field(&target)->text()), "own");
    user.expectFileDialog({"savedialog", {}, {}, "scan.stl.gz", {"Surfaces (*.stl.gz)"}})
        .under(&target)
        .choose(dir.path("a.stl.gz"));
    click(&target); // its own button is still connected to it
    EXPECT_EQ(original.text(), dir.path("a.stl.gz"));
    EXPECT_EQ(support::text(field(&target)->text()), "own");
}

} // namespace
