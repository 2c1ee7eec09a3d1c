#include "cloud/store/FileVault.h"

#include "cloud/RunningService.h"
#include "cloud/base/Secret.h"
#include "cloud/store/StoreError.h"

#include <fstream>

using namespace orvcloud;
namespace fs = std::filesystem;

namespace
{
struct FileVaultTest : ::testing::Test {
    FileVaultTest() { prepareSecrets(); }

    std::size_t filesIn(const fs::path& folder)
    {
        std::size_t count = 0;
        for (const auto& entry : fs::recursive_directory_iterator(directory.path / folder))
            count += entry.is_regular_file() ? 1 : 0;
        return count;
    }

    orvcloud::testing::TemporaryDirectory directory;
    FileVault vault{directory.path};
};
} // namespace

TEST_F(FileVaultTest, KeepsAFileUnderItsHash)
{
    const auto file = vault.receive();
    file->append("a");
    file->append("bc");
    EXPECT_EQ(filesIn("incoming"), 1U);
    const StoredFile stored = file->keep();
    EXPECT_EQ(stored.contentHash, "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"); // FIPS 180-4
    EXPECT_EQ(stored.size, 3U);
    std::ifstream stream(vault.pathOf(stored.contentHash));
    std::string content;
    stream >> content;
    EXPECT_EQ(content, "abc");
    EXPECT_EQ(filesIn("incoming"), 0U);
    EXPECT_EQ(fs::status(vault.pathOf(stored.contentHash)).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::status(directory.path / "files").permissions(), fs::perms::owner_all);
}

TEST_F(FileVaultTest, KeepsTheSameContentOnce)
{
    for (int i = 0; i < 2; ++i) {
        const auto file = vault.receive();
        file->append("same");
        file->keep();
    }
    EXPECT_EQ(filesIn("files"), 1U);
}

TEST_F(FileVaultTest, ForgetsWhatIsntKept)
{
    vault.receive()->append("lost");
    EXPECT_EQ(filesIn("incoming"), 0U);
    std::ofstream(directory.path / "incoming" / "left-by-a-crash") << "x";
    const FileVault again(directory.path);
    EXPECT_EQ(filesIn("incoming"), 0U);
}

TEST_F(FileVaultTest, SaysWhyItCantWrite)
{
    EXPECT_THROW(writeDurably(directory.path / "missing" / "x", "text"), StoreError);
    writeDurably(directory.path / "x", "text");
    writeDurably(directory.path / "x", "new");
    EXPECT_EQ(fs::file_size(directory.path / "x"), 3U);
}
