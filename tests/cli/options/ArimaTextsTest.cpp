#include <gtest/gtest.h>

#include "cli/options/ArimaArguments.h"
#include "cli/options/ArimaTexts.h"
#include "models/arima/OutlierTypes.h"
#include "support/Tables.h"

namespace tsx::cli {
namespace {

using models::ArimaOrders;
using models::Lags;
using models::PredictorRequest;

using test::ErrorOf;

std::string OrdersError(const std::string& text) {
  return ErrorOf([&] { ParseArimaOrders(text); });
}
std::string PredictorError(const std::string& text) {
  return ErrorOf([&] { ParsePredictor(text); });
}
std::string OutlierError(const std::string& text) {
  return ErrorOf([&] { ParseOutlier(text); });
}

TEST(ArimaOrders, OrderStandsForTheLagsUpToIt) {
  const ArimaOrders orders = ParseArimaOrders("arima(2,1,3)");
  EXPECT_EQ(orders.ar.non_seasonal, (Lags{1, 2}));
  EXPECT_EQ(orders.diff, 1U);
  EXPECT_EQ(orders.ma.non_seasonal, (Lags{1, 2, 3}));
  EXPECT_EQ(orders.ar.seasonal, Lags{});
  EXPECT_EQ(orders.seasonal_diff, 0U);
  EXPECT_EQ(orders.ma.seasonal, Lags{});
}

TEST(ArimaOrders, SecondParenthesisCountsSeasons) {
  const ArimaOrders orders = ParseArimaOrders("arima(0,1,1)(2,1,[3])");
  EXPECT_EQ(orders.ar.seasonal, (Lags{1, 2}));
  EXPECT_EQ(orders.seasonal_diff, 1U);
  EXPECT_EQ(orders.ma.seasonal, Lags{3});
}

TEST(ArimaOrders, ListsNameTheLags) {
  const ArimaOrders orders = ParseArimaOrders("arima([1,3],1,[1])");
  EXPECT_EQ(orders.ar.non_seasonal, (Lags{1, 3}));
  EXPECT_EQ(orders.ma.non_seasonal, Lags{1});
}

TEST(ArimaOrders, LagsOfAListAreSorted) {
  EXPECT_EQ(ParseArimaOrders("arima([12,1],0,0)").ar.non_seasonal, (Lags{1, 12}));
}

TEST(ArimaOrders, BlanksAndCapitalsDoNotCount) {
  const ArimaOrders orders = ParseArimaOrders(" ARIMA ( 1 , 0 , [ 2 , 3 ] ) ( 0 , 1 , 1 ) ");
  EXPECT_EQ(orders.ar.non_seasonal, Lags{1});
  EXPECT_EQ(orders.ma.non_seasonal, (Lags{2, 3}));
  EXPECT_EQ(orders.ma.seasonal, Lags{1});
}

TEST(ArimaOrders, AreToldFromOtherModels) {
  EXPECT_TRUE(LooksLikeArima("arima(0,1,1)"));
  EXPECT_TRUE(LooksLikeArima(" Arima (x"));
  EXPECT_FALSE(LooksLikeArima("arima"));
  EXPECT_FALSE(LooksLikeArima("arimax(0,1,1)"));
  EXPECT_FALSE(LooksLikeArima("auto-arima"));
  EXPECT_FALSE(LooksLikeArima(""));
}

TEST(ArimaOrdersError, NumbersOutOfRange) {
  EXPECT_EQ(OrdersError("arima(-1,0,0)"),
            "--model: 'arima(-1,0,0)': '-1' is not a whole number from 0 to 100");
  EXPECT_EQ(OrdersError("arima(0,x,0)"),
            "--model: 'arima(0,x,0)': 'x' is not a whole number from 0 to 5");
  EXPECT_EQ(OrdersError("arima(0,0,101)"),
            "--model: 'arima(0,0,101)': '101' is not a whole number from 0 to 100");
  EXPECT_EQ(OrdersError("arima(0,0,1.5)"),
            "--model: 'arima(0,0,1.5)': '1.5' is not a whole number from 0 to 100");
  EXPECT_EQ(OrdersError("arima(0,6,0)"),
            "--model: 'arima(0,6,0)': '6' is not a whole number from 0 to 5");
  EXPECT_EQ(OrdersError("arima(0,0,99999999999999999999)"),
            "--model: 'arima(0,0,99999999999999999999)': '99999999999999999999' is not a whole "
            "number from 0 to 100");
}

TEST(ArimaOrdersError, LagsOutOfRangeOrTwice) {
  EXPECT_EQ(OrdersError("arima([0],0,0)"),
            "--model: 'arima([0],0,0)': '0' is not a whole number from 1 to 1000");
  EXPECT_EQ(OrdersError("arima([],0,0)"),
            "--model: 'arima([],0,0)': there must be a whole number from 1 to 1000 before "
            "'],0,0)'");
  EXPECT_EQ(OrdersError("arima([3,1,3],0,0)"), "--model: 'arima([3,1,3],0,0)': lag 3 comes twice");
}

TEST(ArimaOrdersError, PartsThatAreNotThere) {
  EXPECT_EQ(OrdersError("arima(1,1)"), "--model: 'arima(1,1)': there must be a ',' before ')'");
  EXPECT_EQ(OrdersError("arima(1,1,1"), "--model: 'arima(1,1,1': there must be a ')' at the end");
  EXPECT_EQ(OrdersError("arima(1,1,1)12"),
            "--model: 'arima(1,1,1)12': there must be a '(' before '12'");
  EXPECT_EQ(OrdersError("arima([1,2,0,0)"),
            "--model: 'arima([1,2,0,0)': '0' is not a whole number from 1 to 1000");
}

TEST(ArimaOrdersError, NumbersThatAreNotThere) {
  EXPECT_EQ(OrdersError("arima()"),
            "--model: 'arima()': there must be a whole number from 0 to 100 before ')'");
  EXPECT_EQ(OrdersError("arima(1,[1],1)"),
            "--model: 'arima(1,[1],1)': there must be a whole number from 0 to 5 before '[1],1)'");
  EXPECT_EQ(OrdersError("arima([1,3,],1,0)"),
            "--model: 'arima([1,3,],1,0)': there must be a whole number from 1 to 1000 before "
            "'],1,0)'");
  EXPECT_EQ(OrdersError("arima(1,"),
            "--model: 'arima(1,': there must be a whole number from 0 to 5 at the end");
}

TEST(ArimaOrdersError, SeasonBehindTheOrders) {
  EXPECT_EQ(OrdersError("arima(0,1,1)(0,1,1)12"),
            "--model: 'arima(0,1,1)(0,1,1)12': nothing may follow the orders; --season gives the "
            "length of the season");
}

TEST(PredictorOption, ColumnAloneHasAnEffectAtOnce) {
  const PredictorRequest predictor = ParsePredictor("law");
  EXPECT_EQ(predictor.column, "law");
  EXPECT_EQ(predictor.delay, 0U);
  EXPECT_EQ(predictor.diff, 0U);
  EXPECT_EQ(predictor.seasonal_diff, 0U);
  EXPECT_EQ(predictor.function_type, TSTransformation::kNone);
  EXPECT_EQ(predictor.numerator.non_seasonal, Lags{});
  EXPECT_EQ(predictor.denominator.non_seasonal, Lags{});
}

TEST(PredictorOption, EveryKeyIsTaken) {
  const PredictorRequest predictor =
      ParsePredictor("lead:delay=3,num=1,den=2,diff=1,sdiff=2,snum=[2],sden=[1,3],transform=log");
  EXPECT_EQ(predictor.column, "lead");
  EXPECT_EQ(predictor.delay, 3U);
  EXPECT_EQ(predictor.diff, 1U);
  EXPECT_EQ(predictor.seasonal_diff, 2U);
  EXPECT_EQ(predictor.numerator.non_seasonal, Lags{1});
  EXPECT_EQ(predictor.denominator.non_seasonal, (Lags{1, 2}));
  EXPECT_EQ(predictor.numerator.seasonal, Lags{2});
  EXPECT_EQ(predictor.denominator.seasonal, (Lags{1, 3}));
  EXPECT_EQ(predictor.function_type, TSTransformation::kLogarithm);
}

TEST(PredictorOption, ZeroDifferencesAreDifferencesGiven) {
  EXPECT_TRUE(ParsePredictor("x:diff=0").has_differences);
  EXPECT_TRUE(ParsePredictor("x:sdiff=1").has_differences);
  EXPECT_FALSE(ParsePredictor("x:delay=0").has_differences);
}

TEST(PredictorOption, ColonBelongsToTheColumnUnlessKeysFollow) {
  EXPECT_EQ(ParsePredictor("price:euro").column, "price:euro");
  EXPECT_EQ(ParsePredictor("price:euro:delay=1").column, "price:euro");
  EXPECT_EQ(ParsePredictor("a=b").column, "a=b");
}

TEST(PredictorOption, BlanksAroundPartsDoNotCount) {
  const PredictorRequest predictor = ParsePredictor(" my lead : delay = 3 , transform = sqrt ");
  EXPECT_EQ(predictor.column, "my lead");
  EXPECT_EQ(predictor.delay, 3U);
  EXPECT_EQ(predictor.function_type, TSTransformation::kSquareRoot);
}

TEST(PredictorOptionError, UnknownOrRepeatedKey) {
  EXPECT_EQ(PredictorError("lead:dely=3"),
            "--predictor: 'lead:dely=3': 'dely' is none of delay, num, den, diff, snum, sden, "
            "sdiff, transform");
  EXPECT_EQ(PredictorError("lead:num=1,num=1"),
            "--predictor: 'lead:num=1,num=1': 'num' comes twice");
}

TEST(PredictorOptionError, BadValues) {
  EXPECT_EQ(PredictorError("x:delay=1001"),
            "--predictor: 'x:delay=1001': '1001' is not a whole number from 0 to 1000");
  EXPECT_EQ(PredictorError("x:diff=-1"),
            "--predictor: 'x:diff=-1': '-1' is not a whole number from 0 to 5");
  EXPECT_EQ(PredictorError("x:transform=cube"),
            "--predictor: 'x:transform=cube': 'cube' is none of none, log, sqrt");
  EXPECT_EQ(PredictorError("x:den=[1"), "--predictor: 'x:den=[1': there must be a ']' at the end");
}

TEST(PredictorOptionError, PartsThatAreNotThereOrTooMany) {
  EXPECT_EQ(PredictorError("x:delay=1,"),
            "--predictor: 'x:delay=1,': '' is none of delay, num, "
            "den, diff, snum, sden, sdiff, transform");
  EXPECT_EQ(PredictorError("x:delay="),
            "--predictor: 'x:delay=': there must be a whole number from 0 to 1000 at the end");
  EXPECT_EQ(PredictorError("x:delay=1,num"),
            "--predictor: 'x:delay=1,num': there must be a '=' at the end");
  EXPECT_EQ(PredictorError("x:num=[1]2"),
            "--predictor: 'x:num=[1]2': there must be a ',' before '2'");
}

TEST(OutlierOption, EveryTypeHasItsName) {
  const std::pair<const char*, int> types[] = {
      {"additive", TSOutlierSpec::kAdditive},
      {"level", TSOutlierSpec::kLevel},
      {"transient", TSOutlierSpec::kTransient},
      {"seasonal-additive", TSOutlierSpec::kSeasonalAdditive},
      {"trend", TSOutlierSpec::kTrend},
      {"innovational", TSOutlierSpec::kInnovational}};
  for (const auto& [name, type] : types) {
    EXPECT_EQ(ParseOutlier(std::string(name) + "@1957-03").type, type);
    EXPECT_STREQ(models::FindOutlierType(type)->name, name);
  }
}

TEST(OutlierOption, TimeHasTheFormsOfATable) {
  EXPECT_EQ(ParseOutlier("level@1899").time.tick, 1899);
  EXPECT_EQ(ParseOutlier("level @ 1957-03").time.tick, 1957 * 12 + 2);
  EXPECT_EQ(ParseOutlier("level@2020-01-05 13:00").time.form.unit, tsxtimes::TimeUnit::kSecond);
}

TEST(OutlierOptionError, NamesTheCause) {
  EXPECT_EQ(OutlierError("level"), "--outlier: 'level': there must be a '@' between type and time");
  EXPECT_EQ(OutlierError("shift@1899"),
            "--outlier: 'shift@1899': 'shift' is none of additive, level, transient, "
            "seasonal-additive, trend, innovational");
  EXPECT_EQ(OutlierError("level@then"), "--outlier: 'level@then': 'then' is not a time");
  EXPECT_EQ(OutlierError("level@1957-13"), "--outlier: 'level@1957-13': there is no month 13");
}

TEST(MethodOption, HasThreeValues) {
  EXPECT_EQ(ParseArimaMethod("ml"), tsffit::ArimaMethod::kMl);
  EXPECT_EQ(ParseArimaMethod("ml-theta"), tsffit::ArimaMethod::kMlTheta);
  EXPECT_EQ(ParseArimaMethod("cls"), tsffit::ArimaMethod::kCls);
  EXPECT_EQ(ErrorOf([] { ParseArimaMethod("ols"); }),
            "--method: 'ols' is none of ml, ml-theta, cls");
}

}  // namespace
}  // namespace tsx::cli
