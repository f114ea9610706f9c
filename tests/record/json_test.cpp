#include "record/json.h"

#include <gtest/gtest.h>

namespace pawnfield {
namespace {

TEST(Json, WhatIsWrittenReadsBackTheSame) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  const Json json(Json::Members{{"text", all},
                                {"number", std::int64_t{-9007199254740993}},
                                {"parts", Json::List{0.5, 1.0, -0.0, 1e30}},
                                {"list", Json::List{true, false, Json(), "", Json::List{}}},
                                {"inner", Json::Members{{"a\"b\\", 1}}}});
  const std::string text = json.Text();
  EXPECT_EQ(text.find('\n'), std::string::npos);
  for (const char c : text) EXPECT_LT(static_cast<unsigned char>(c), 0x7F);
  EXPECT_EQ(Json::Parse(text), json);
}

TEST(Json, OnlyJsonIsRead) {
  for (const char* good : {"0", "-1.5e3", " [ 1 , 2 ] ", "{\"a\":{}}", "\"\\u00e4\\n\"", "null"})
    EXPECT_TRUE(Json::Parse(good)) << good;
  for (const char* bad : {"", "01", "1.", "-", "+1", "[1,]", "[1 2]", "{\"a\"}", "{a:1}", "{\"a\":1,}", "\"a",
                          "\"\\x\"", "\"\\u12\"", "\"\\u0100\"", "\"a\nb\"", "tru", "1 1", "NaN", "]"})
    EXPECT_FALSE(Json::Parse(bad)) << bad;
  EXPECT_TRUE(Json::Parse(std::string(30, '[') + std::string(30, ']')));
  EXPECT_FALSE(Json::Parse(std::string(100000, '[')));
}

TEST(Json, AValueOfAnotherKindGivesTheFallback) {
  const auto json = Json::Parse(R"({"text":"7","number":7,"large":1e30})");
  ASSERT_TRUE(json);
  EXPECT_EQ(json->Find("text")->AsNumber(3), 3);
  EXPECT_EQ(json->Find("number")->AsText("none"), "none");
  EXPECT_EQ(json->Find("large")->AsNumber(-1), -1);
  EXPECT_EQ(json->Find("missing"), nullptr);
  EXPECT_TRUE(json->Find("number")->AsList().empty());
}

}  // namespace
}  // namespace pawnfield
