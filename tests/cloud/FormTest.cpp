#include "cloud/http/Form.h"

#include <gtest/gtest.h>

using namespace orvcloud;

TEST(Form, ReadsParametersInOrder)
{
    const auto form = parseForm("name=a%20b&x=1+2&empty=&bare&last=%C3%A4%2B%2525");
    ASSERT_TRUE(form);
    const std::vector<std::pair<std::string, std::string>> expected{
        {"name", "a b"}, {"x", "1 2"}, {"empty", ""}, {"bare", ""}, {"last", "\xC3\xA4+%25"}};
    EXPECT_EQ(form->all(), expected);
    EXPECT_EQ(*form->find("x"), "1 2");
    EXPECT_EQ(form->find("y"), nullptr);
    EXPECT_TRUE(parseForm("")->all().empty());
}

TEST(Form, RefusesWhatCanBeReadInTwoWays)
{
    for (const char* bad : {"a=1&a=2", "a=%", "a=%4", "a=%4g", "a=%FF", "%C3=1", "a=1&%61=2"})
        EXPECT_FALSE(parseForm(bad)) << bad;
}

TEST(Form, HasAnEnd)
{
    std::string many;
    for (int i = 0; i < 65; ++i)
        many += "p" + std::to_string(i) + "=1&";
    EXPECT_FALSE(parseForm(many));
}
