#include "exporters/bomwriter/BomPdf.h"

#include "exporters/page/PdfPage.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace bomwriter
{

namespace
{

using orvexport::PdfCanvas;
using orvexport::TextBlock;
using orvexport::TextStyle;

constexpr double pageWidth = orvexport::shortSide;
constexpr double pageHeight = orvexport::longSide;
constexpr double margin = 48;
constexpr double tableWidth = pageWidth - 2 * margin;
constexpr double tableEnd = pageHeight - margin - 24;
constexpr double cellPadding = 4;
constexpr double indentOfLevel = 12;
constexpr int deepestIndent = 8;
constexpr double textSize = 9.5;
constexpr int mostLinesOfName = 12;

struct Column {
    char const* title;
    double x;
    double width;
    PangoAlignment alignment;
};

/// Room for the widest item, as far as the names leave it; longer ones are wrapped.
double widthOfItems(PdfCanvas const& canvas, BomTable const& table)
{
    double const least = table.byPart ? 44 : 76;
    constexpr double most = 0.4 * tableWidth;
    double text = 0;
    for (auto const& row : table.rows) { // points are narrower than digits, so that the longest need not be the widest
        text = std::max(text, TextBlock(canvas, row.item, tableWidth, {textSize}).width());
    }
    return std::clamp(text + 2 * cellPadding + 1, least, most);
}

std::vector<Column> columnsOf(BomTable const& table, double item)
{
    double const number = 58;
    double const numbers = table.byPart ? number : 2 * number;
    std::vector<Column> columns{{"Item", margin, item, PANGO_ALIGN_LEFT},
                                {"Part", margin + item, tableWidth - item - numbers, PANGO_ALIGN_LEFT},
                                {"Quantity", margin + tableWidth - numbers, number, PANGO_ALIGN_RIGHT}};
    if (!table.byPart) {
        columns.push_back({"Total", margin + tableWidth - number, number, PANGO_ALIGN_RIGHT});
    }
    return columns;
}

class Report
{
public:
    Report(BomTable const& shown, std::string const& when)
        : table(shown), date(when), canvas(pageWidth, pageHeight, shown.title + " - bill of materials"),
          columns(columnsOf(shown, widthOfItems(canvas, shown)))
    {
    }

    std::string draw(std::function<void(double)> const& progress)
    {
        auto const pages = pageBreaks(progress);
        for (std::size_t page = 0; page < pages.size(); ++page) {
            double y = page == 0 ? titleBlock(true) : margin;
            y = head(y);
            std::size_t const end = page + 1 < pages.size() ? pages[page + 1] : table.rows.size();
            for (std::size_t row = pages[page]; row < end; ++row) {
                y = drawRow(table.rows[row], y);
                progress(0.5 + 0.5 * static_cast<double>(row + 1) / static_cast<double>(table.rows.size()));
            }
            foot(page + 1, pages.size());
            canvas.nextPage();
        }
        return canvas.finish();
    }

private:
    TextBlock text(std::string const& what, double width, TextStyle const& style) const
    {
        return {canvas, what, width, style};
    }

    TextBlock nameOf(BomRow const& row) const
    {
        return text(row.name, columns[1].width - indentOf(row) - 2 * cellPadding,
                    {textSize, false, 0, PANGO_ALIGN_LEFT, mostLinesOfName});
    }
    static double indentOf(BomRow const& row) { return indentOfLevel * std::min(row.level, deepestIndent); }
    TextBlock itemOf(BomRow const& row) const
    {
        return text(row.item, columns[0].width - 2 * cellPadding,
                    {textSize, false, 0, PANGO_ALIGN_LEFT, mostLinesOfName});
    }
    double heightOf(BomRow const& row) const
    {
        return std::max(nameOf(row).height(), itemOf(row).height()) + 2 * cellPadding;
    }

    /// The first row of each page.
    std::vector<std::size_t> pageBreaks(std::function<void(double)> const& progress)
    {
        std::vector<std::size_t> pages{0};
        double y = titleBlock(false) + headHeight();
        for (std::size_t row = 0; row < table.rows.size(); ++row) {
            double const height = heightOf(table.rows[row]);
            if (y + height > tableEnd && row > pages.back()) {
                pages.push_back(row);
                y = margin + headHeight();
            }
            y += height;
            progress(0.5 * static_cast<double>(row + 1) / static_cast<double>(table.rows.size()));
        }
        return pages;
    }

    /// Returns where it ends.
    double titleBlock(bool isDrawn) const
    {
        std::int64_t pieces = 0;
        for (auto const& row : table.rows) {
            pieces += row.level == 0 ? row.quantity : 0;
        }
        std::string const kind = table.byPart ? "Bill of materials by part" : "Bill of materials by level";
        std::string const facts =
            date + "   \u00B7   " + std::to_string(table.rows.size()) + (table.rows.size() == 1 ? " item" : " items") +
            (table.byPart ? "   \u00B7   " + std::to_string(pieces) + (pieces == 1 ? " piece" : " pieces")
                          : std::string());
        double y = margin;
        for (auto const& [what, style, gap] :
             {std::tuple{table.title, TextStyle{18, true, 0, PANGO_ALIGN_LEFT, 4}, 2.0},
              std::tuple{kind, TextStyle{11, false, 0.25, PANGO_ALIGN_LEFT, 1}, 2.0},
              std::tuple{facts, TextStyle{9, false, 0.4, PANGO_ALIGN_LEFT, 1}, 16.0}}) {
            auto const block = text(what, tableWidth, style);
            if (isDrawn) {
                block.draw(canvas, margin, y);
            }
            y += block.height() + gap;
        }
        return y;
    }

    TextBlock titleOf(Column const& column) const
    {
        return text(column.title, column.width - 2 * cellPadding, {textSize, true, 0, column.alignment, 1});
    }
    double headHeight() const { return titleOf(columns[0]).height() + 2 * cellPadding; }

    double head(double y) const
    {
        cairo_t* const cairo = canvas.context();
        double const height = headHeight();
        cairo_set_source_rgb(cairo, 0.92, 0.93, 0.94);
        cairo_rectangle(cairo, margin, y, tableWidth, height);
        cairo_fill(cairo);
        for (auto const& column : columns) {
            titleOf(column).draw(canvas, column.x + cellPadding, y + cellPadding);
        }
        line(y + height, 0.4, 0.8);
        return y + height;
    }

    void line(double y, double grey, double width) const
    {
        cairo_t* const cairo = canvas.context();
        cairo_set_source_rgb(cairo, grey, grey, grey);
        cairo_set_line_width(cairo, width);
        cairo_move_to(cairo, margin, y);
        cairo_line_to(cairo, margin + tableWidth, y);
        cairo_stroke(cairo);
    }

    double drawRow(BomRow const& row, double y) const
    {
        auto const cell = [&](Column const& column, std::string const& what) {
            text(what, column.width - 2 * cellPadding, {textSize, false, 0, column.alignment, 1})
                .draw(canvas, column.x + cellPadding, y + cellPadding);
        };
        itemOf(row).draw(canvas, columns[0].x + cellPadding, y + cellPadding);
        nameOf(row).draw(canvas, columns[1].x + cellPadding + indentOf(row), y + cellPadding);
        cell(columns[2], std::to_string(row.quantity));
        if (!table.byPart) {
            cell(columns[3], std::to_string(row.total));
        }
        y += heightOf(row);
        line(y, 0.85, 0.5);
        return y;
    }

    void foot(std::size_t page, std::size_t pages) const
    {
        double const y = pageHeight - margin - 10;
        double const numberWidth = 120;
        TextStyle const style{8, false, 0.4, PANGO_ALIGN_LEFT, 1};
        text(table.title, tableWidth - numberWidth - 12, style).draw(canvas, margin, y);
        text("Page " + std::to_string(page) + " of " + std::to_string(pages), numberWidth,
             {style.size, false, style.grey, PANGO_ALIGN_RIGHT, 1})
            .draw(canvas, margin + tableWidth - numberWidth, y);
    }

    BomTable const& table;
    std::string date;
    PdfCanvas canvas;
    std::vector<Column> columns;
};

} // namespace

std::string pdfOf(BomTable const& table, std::string const& date, std::function<void(double)> const& progress)
{
    return Report(table, date).draw(progress);
}

} // namespace bomwriter
