#include "exporters/pdf/PagePicture.h"

#include "exporters/CommandOutput.h"

#include <gtest/gtest.h>

#include <sstream>

namespace orvtest
{

Pixels pageOf(std::filesystem::path const& pdf, int pixelsPerInch)
{
    // Without a name for the picture it comes out of the standard output.
    std::istringstream in(
        outputOf("pdftoppm -r " + std::to_string(pixelsPerInch) + " -f 1 -l 1 '" + pdf.string() + "'"));
    Pixels result;
    std::string kind;
    int depth = 0;
    in >> kind >> result.width >> result.height >> depth;
    in.get();
    result.bytes.assign(std::istreambuf_iterator<char>(in), {});
    EXPECT_EQ(kind, "P6");
    EXPECT_EQ(result.bytes.size(),
              std::size_t{3} * static_cast<std::size_t>(result.width) * static_cast<std::size_t>(result.height));
    return result;
}

} // namespace orvtest
