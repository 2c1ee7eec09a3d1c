#include "exporters/bomwriter/BomTable.h"

#include "exporters/base/PlacedParts.h"
#include "host/orvsg/SCBom.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/BOMUtils.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <string_view>

namespace bomwriter
{

namespace
{

/// Numbers the rows and multiplies the quantities down the tree.
class Numbering
{
public:
    void number(BomRow& row)
    {
        auto const level = static_cast<std::size_t>(row.level);
        places.resize(std::min(places.size(), level + 1));
        totals.resize(std::min(totals.size(), level));
        // A level that is left out has nothing to be multiplied by.
        places.resize(level + 1);
        totals.resize(level, totals.empty() ? 1 : totals.back());
        ++places[level];
        for (std::size_t i = 0; i <= level; ++i) {
            row.item += i > 0 ? "." : "";
            row.item += std::to_string(places[i]);
        }
        row.total = row.quantity * (level > 0 ? totals[level - 1] : 1);
        totals.push_back(row.total);
    }

private:
    std::vector<int> places;
    std::vector<std::int64_t> totals;
};

/// A name comes from somebody else's file. Spreadsheets would run one that begins like a formula; an apostrophe in
/// front makes text of it.
std::string asText(std::string const& name)
{
    constexpr std::string_view formulaSigns = "=+-@\t\r\n";
    auto const first = name.find_first_not_of(' ');
    bool const isFormula = first != std::string::npos && formulaSigns.find(name[first]) != std::string_view::npos;
    return isFormula ? "'" + name : name;
}

std::string field(std::string const& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos && !text.starts_with(' ') && !text.ends_with(' ')) {
        return text;
    }
    std::string quoted = "\"";
    for (char const c : text) {
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    }
    return quoted + '"';
}

} // namespace

BomTable bomTable(std::shared_ptr<orv::IDocument> const& document)
{
    auto const record = orv::recordOf<orvsg::SCBom>(document, orvsg::SCBom::BOM);
    auto const bom = std::make_shared<orvsg::SCBom>();
    orvsgutils::BOMUtils::createBOM(orv::recordOf<orvsg::SCSceneTopo>(document), bom, record ? record->reportLevel : 0);

    BomTable table;
    table.title = orvexport::modelName(document);
    table.byPart = bom->reportLevel == 0;
    Numbering numbering;
    for (auto const& item : bom->items) {
        BomRow row;
        row.level = std::max(item.level, 0);
        row.name = orvtext::toUtf8(item.name);
        row.quantity = item.quantity;
        numbering.number(row);
        table.rows.push_back(std::move(row));
    }
    return table;
}

std::string csvOf(BomTable const& table)
{
    std::string text = "\xEF\xBB\xBF"; // else spreadsheets take it for the system's old 8-bit text
    text += table.byPart ? "Item,Part,Quantity\r\n" : "Item,Level,Part,Quantity,Total\r\n";
    for (auto const& row : table.rows) {
        text += row.item + ',';
        if (!table.byPart) {
            text += std::to_string(row.level + 1) + ',';
        }
        text += field(asText(row.name)) + ',' + std::to_string(row.quantity);
        if (!table.byPart) {
            text += ',' + std::to_string(row.total);
        }
        text += "\r\n";
    }
    return text;
}

} // namespace bomwriter
