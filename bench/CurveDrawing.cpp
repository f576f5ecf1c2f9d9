#include "CurveDrawing.h"

#include <array>
#include <cstddef>
#include <iomanip>
#include <sstream>

namespace brindlex {
namespace {

constexpr double plotWidth = 260;
constexpr double plotHeight = 180;
constexpr double left = 50;
constexpr double top = 40;
constexpr double column = plotWidth + 90;
constexpr double legendRow = 16;
constexpr double height = top + plotHeight + 140;

constexpr std::array colours{"#2e6fbb", "#c2572b", "#3f8f4f", "#8054a8", "#777777"};

class Picture {
public:
    explicit Picture(std::size_t diagrams)
    {
        text_ << std::fixed << std::setprecision(1)
              << R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 )"
              << static_cast<double>(diagrams) * column << " " << height
              << R"(" font-family="sans-serif" font-size="11">)"
              << "\n<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n";
    }

    void add(const Diagram& diagram)
    {
        text_ << "<g transform=\"translate(" << place_ + left << " " << top << ")\">\n";
        label(plotWidth / 2, -16, "middle", diagram.title);
        label(plotWidth / 2, plotHeight + 32, "middle", diagram.xAxis);
        label(-8, -4, "end", diagram.yAxis);
        text_ << "<path fill=\"none\" stroke=\"#444444\" d=\"M0 0V" << plotHeight << "H"
              << plotWidth << "\"/>\n";
        constexpr int marks = 4;
        for (int mark = 0; mark <= marks; ++mark) {
            const double share = double(mark) / marks;
            label(share * plotWidth, plotHeight + 15, "middle", number(share * diagram.xEnd));
            if (mark > 0)
                label(-6, (1 - share) * plotHeight + 4 + (mark == marks ? 8 : 0), "end",
                    number(share * diagram.yEnd));
        }
        for (std::size_t index = 0; index < diagram.curves.size(); ++index)
            add(diagram, diagram.curves[index], index);
        text_ << "</g>\n";
        place_ += column;
    }

    std::string text() const { return text_.str() + "</svg>\n"; }

private:
    static std::string number(double value)
    {
        std::ostringstream text;
        text << std::setprecision(4) << value;
        return text.str();
    }

    void label(double x, double y, const char* anchor, const std::string& words)
    {
        text_ << "<text x=\"" << x << "\" y=\"" << y << "\" text-anchor=\"" << anchor << "\">"
              << words << "</text>\n";
    }

    void add(const Diagram& diagram, const Curve& curve, std::size_t index)
    {
        const auto* colour = colours[index % colours.size()];
        text_ << "<polyline fill=\"none\" stroke-width=\"1.6\" stroke=\"" << colour
              << "\" points=\"";
        for (const auto& point : curve.places)
            text_ << point.x / diagram.xEnd * plotWidth << ","
                  << (1 - point.y / diagram.yEnd) * plotHeight << " ";
        text_ << "\"/>\n";
        const double row = plotHeight + 54 + static_cast<double>(index) * legendRow;
        text_ << "<path stroke-width=\"2\" stroke=\"" << colour << "\" d=\"M0 " << row - 4
              << "h18\"/>\n";
        label(24, row, "start", curve.name);
    }

    std::ostringstream text_;
    double place_ = 0;
};

} // namespace

std::string drawing(const std::vector<Diagram>& diagrams)
{
    Picture picture(diagrams.size());
    for (const auto& diagram : diagrams)
        picture.add(diagram);
    return picture.text();
}

} // namespace brindlex
