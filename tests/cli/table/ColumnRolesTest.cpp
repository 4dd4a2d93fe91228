#include <gtest/gtest.h>

#include "cli/table/ColumnRoles.h"
#include "support/Tables.h"

namespace tsx::cli {
namespace {

using test::ErrorOf;
using test::Table;
using Columns = std::vector<std::size_t>;

ColumnRoles Choose(std::string_view text, const ColumnRequest& request = {}) {
  return ChooseColumns(Table(text), request);
}
std::string ChooseError(std::string_view text, const ColumnRequest& request = {}) {
  return ErrorOf([&] { Choose(text, request); });
}

TEST(ColumnRoles, TimeIsFoundByItsName) {
  const ColumnRoles roles = Choose("value,Date\n5,1\n6,2\n");
  EXPECT_EQ(roles.time, 1U);
  EXPECT_EQ(roles.variables, Columns{0});
}

TEST(ColumnRoles, TimeIsFoundByItsForm) {
  EXPECT_EQ(Choose("value,when\n5,1949-01\n6,1949-02\n").time, 1U);
}

TEST(ColumnRoles, ImpossibleTimeStillLooksLikeATime) {
  EXPECT_EQ(Choose("value,when\n5,1949-13\n6,1950-01\n").time, 1U);
}

TEST(ColumnRoles, RisingWholeNumbersInFrontAreATime) {
  EXPECT_EQ(Choose("n,value\n1,5\n2,6\n4,3\n").time, 0U);
}

TEST(ColumnRoles, RisingNumbersWithoutOthersBesideThemAreTheSeries) {
  const ColumnRoles roles = Choose("n\n1\n2\n");
  EXPECT_FALSE(roles.time);
  EXPECT_EQ(roles.variables, Columns{0});
}

TEST(ColumnRoles, NumbersThatFallAreNoTime) {
  EXPECT_FALSE(Choose("a,b\n2,5\n1,6\n").time);
  EXPECT_EQ(Choose("a,b\n2,5\n1,6\n").variables, (Columns{0, 1}));
}

TEST(ColumnRoles, NumbersThatStartAfreshForEachIdAreATime) {
  const ColumnRoles roles = Choose("shop,n,y\na,1,5\na,2,6\nb,1,7\nb,2,8\n", {"", "shop", {}});
  EXPECT_EQ(roles.time, 1U);
  EXPECT_EQ(roles.variables, Columns{2});
}

TEST(ColumnRoles, ColumnsOfWordsAreLeftOut) {
  EXPECT_EQ(Choose("date,place,y\n1,north,5\n2,south,6\n").variables, Columns{2});
}

TEST(ColumnRoles, ColumnOfNumbersWithAWordInItIsAVariable) {
  EXPECT_EQ(Choose("date,y\n1,5\n2,six\n3,7\n").variables, Columns{1});
}

TEST(ColumnRoles, EmptyColumnIsNoVariable) {
  EXPECT_EQ(Choose("date,y,z\n1,5,\n2,6,NA\n").variables, Columns{1});
}

TEST(ColumnRoles, RowNumbersWithoutANameArePassedOver) {
  const ColumnRoles roles = Choose("\"\",\"date\",\"y\"\n\"1\",1949-01,5\n\"2\",1949-02,6\n");
  EXPECT_EQ(roles.time, 1U);
  EXPECT_EQ(roles.variables, Columns{2});
}

TEST(ColumnRoles, RowNumbersWithoutANameAreTheTimeWhereThereIsNoOther) {
  EXPECT_EQ(Choose(",y\n0,5\n1,6\n").time, 0U);
}

TEST(ColumnRoles, FirstLineOfTimesAndNumbersNamesNoColumns) {
  const std::string cause = ": the first line holds no names of columns but times or numbers";
  EXPECT_EQ(ChooseError("1949-01,112\n1949-02,118\n"), "table.csv:1:1" + cause);
  EXPECT_EQ(ChooseError("112\n118\n132\n"), "table.csv:1:1" + cause);
  EXPECT_EQ(ChooseError("1871;1,5;NA;\n1872;2;3;4\n"), "table.csv:1:1" + cause);
}

TEST(ColumnRoles, YearsMayNameColumnsBesideAWord) {
  EXPECT_EQ(Choose("month,1949,1950\n1,5,7\n2,6,8\n").variables, (Columns{1, 2}));
}

TEST(ColumnRoles, NumbersMayNameColumnsBesideRowNumbers) {
  EXPECT_EQ(Choose(",0,1\n0,5,7\n1,6,8\n").variables, (Columns{1, 2}));
}

TEST(ColumnRoles, NumberNamesAColumnThatTheCommandLineNames) {
  EXPECT_EQ(Choose("0,1\n5,7\n6,8\n", {"", "", {"1"}}).variables, Columns{1});
}

TEST(ColumnRoles, VariablesKeepTheOrderOfTheCommandLine) {
  EXPECT_EQ(Choose("date,a,b\n1,5,6\n", {"", "", {"b", "a"}}).variables, (Columns{2, 1}));
}

TEST(ColumnRoles, TimeOfTheCommandLineWins) {
  const ColumnRoles roles = Choose("date,t,y\n1,1,5\n2,2,6\n", {"t", "", {}});
  EXPECT_EQ(roles.time, 1U);
  EXPECT_EQ(roles.variables, (Columns{0, 2}));
}

TEST(ColumnRolesError, UnknownColumnIsToldWithThoseThereAre) {
  EXPECT_EQ(ChooseError("date,y\n1,5\n", {"", "", {"z"}}),
            "--variable: table.csv has no column 'z'; it has date, y");
  EXPECT_EQ(ChooseError("date,y\n1,5\n", {"z", "", {}}),
            "--time: table.csv has no column 'z'; it has date, y");
  EXPECT_EQ(ChooseError("date,y\n1,5\n", {"", "z", {}}),
            "--id: table.csv has no column 'z'; it has date, y");
}

TEST(ColumnRolesError, ColumnWithTwoParts) {
  EXPECT_EQ(ChooseError("date,y\n1,5\n", {"", "", {"y", "y"}}),
            "--variable: column 'y' has a part to play already");
  EXPECT_EQ(ChooseError("date,y\n1,5\n", {"y", "", {"y"}}),
            "--time: column 'y' has a part to play already");
  EXPECT_EQ(ChooseError("date,y\n1,5\n", {"", "y", {"y"}}),
            "--variable: column 'y' has a part to play already");
}

TEST(ColumnRolesError, NoNumbersBlamesTheFirstWord) {
  EXPECT_EQ(ChooseError("date,y\n1,\n2,six\n"),
            "table.csv:3:3: 'six' is not a number (column \"y\"), and no column holds numbers");
}

TEST(ColumnRolesError, NothingBesideTheTime) {
  EXPECT_EQ(ChooseError("date\n1949-01\n"),
            "table.csv:1:1: there is no column of numbers beside the time");
}

TEST(ColumnRolesError, NumbersWithoutAName) {
  EXPECT_EQ(ChooseError("date,,y\n1,5,6\n2,4,6\n"),
            "table.csv:1:6: column 2 holds numbers but has no name");
}

TEST(PredictorRoles, AreNoVariablesByDefault) {
  const ColumnRoles roles =
      Choose("date,a,x,b\n2000-01,5,1,3\n2000-02,6,2,4\n", {.predictors = {"x"}});
  EXPECT_EQ(roles.variables, (Columns{1, 3}));
  EXPECT_EQ(roles.predictors, Columns{2});
}

TEST(PredictorRoles, StandInTheOrderAskedFor) {
  EXPECT_EQ(Choose("a,x,b\n5,1,3\n6,2,4\n", {.predictors = {"b", "x"}}).predictors,
            (Columns{2, 1}));
}

TEST(PredictorRoles, AreNoTime) {
  const ColumnRoles roles = Choose("y,month\n5,1\n4,2\n6,3\n", {.predictors = {"month"}});
  EXPECT_FALSE(roles.time);
  EXPECT_EQ(roles.variables, Columns{0});
}

TEST(PredictorRoles, LeaveTheirSeriesAVariableThoughItRises) {
  const ColumnRoles roles = Choose("y,x\n5,1\n6,2\n8,3\n", {.predictors = {"x"}});
  EXPECT_FALSE(roles.time);
  EXPECT_EQ(roles.variables, Columns{0});
}

TEST(PredictorRolesError, UnknownColumn) {
  EXPECT_EQ(ChooseError("n,y\n1,5\n2,6\n", {.predictors = {"x"}}),
            "--predictor: table.csv has no column 'x'; it has n, y");
}

TEST(PredictorRolesError, ColumnWithAnotherPart) {
  for (const ColumnRequest& request :
       {ColumnRequest{.predictors = {"x", "x"}}, ColumnRequest{.id = "x", .predictors = {"x"}},
        ColumnRequest{.variables = {"x"}, .predictors = {"x"}}}) {
    EXPECT_EQ(ChooseError("n,y,x\n1,5,1\n2,6,2\n", request),
              "--predictor: column 'x' has a part to play already");
  }
  EXPECT_EQ(ChooseError("n,y,x\n1,5,1\n2,6,2\n", {.time = "x", .predictors = {"x"}}),
            "--time: column 'x' has a part to play already");
}

TEST(PredictorRolesError, NoOtherNumbers) {
  EXPECT_EQ(ChooseError("x\n5\n7\n", {.predictors = {"x"}}),
            "table.csv:1:1: there is no column of numbers beside time and predictors");
}

}  // namespace
}  // namespace tsx::cli
