#include "resources/ElfSection.h"
#include "resources/ResFile.h"

#include <gtest/gtest.h>

using restest::sectionOf;

namespace
{

constexpr const char* place = ".rsrc.orvanta";

} // namespace

TEST(Embedding, PutsTheWholeFileIntoOneSection)
{
    const auto found = sectionOf(restest::readFile(ORV_CARRIER), place);
    ASSERT_TRUE(found);
    EXPECT_TRUE(*found == restest::readFile(ORV_RESOURCE_FILE));
}

TEST(Embedding, SurvivesALinkerThatDropsUnusedSections)
{
    const auto found = sectionOf(restest::readFile(ORV_FRUGAL_CARRIER), place);
    ASSERT_TRUE(found);
    EXPECT_TRUE(*found == restest::readFile(ORV_RESOURCE_FILE));
}

TEST(Embedding, GivesThePluginTheFileThatWasCompiled)
{
    const auto found = sectionOf(restest::readFile(ORV_PLUGIN_FILE), place);
    ASSERT_TRUE(found);
    EXPECT_TRUE(*found == restest::readFile(ORV_RESOURCE_FILE));
}
