#include "paint/floodFill.h"

#include <algorithm>
#include <vector>

namespace {

class Filling {
public:
    Filling(QImage& image, QPoint from)
        : pixels(reinterpret_cast<QRgb*>(image.bits()))
        , stride(image.bytesPerLine() / qsizetype(sizeof(QRgb)))
        , size(image.size())
        , old(row(from.y())[from.x()])
        , waiting{from}
    {
    }

    void fillWith(QRgb colour)
    {
        while (old != colour && !waiting.empty()) {
            const QPoint from = waiting.back();
            waiting.pop_back();
            if (row(from.y())[from.x()] == old)
                fillRun(from, colour);
        }
    }

private:
    QRgb* row(int y) const { return pixels + y * stride; }

    /// The run of the old colour through `from`, then its neighbours above and below.
    void fillRun(QPoint from, QRgb colour)
    {
        QRgb* const line = row(from.y());
        int left = from.x();
        while (left > 0 && line[left - 1] == old)
            --left;
        int end = from.x();
        while (end < size.width() && line[end] == old)
            ++end;
        std::fill(line + left, line + end, colour);
        if (from.y() > 0)
            addRuns(from.y() - 1, left, end);
        if (from.y() + 1 < size.height())
            addRuns(from.y() + 1, left, end);
    }

    /// One pixel of each run of the old colour between two columns.
    void addRuns(int y, int left, int end)
    {
        const QRgb* const line = row(y);
        for (int x = left; x < end; ++x) {
            if (line[x] == old && (x == left || line[x - 1] != old))
                waiting.emplace_back(x, y);
        }
    }

    QRgb* pixels;
    qsizetype stride; // pixels from one row to the next
    QSize size;
    QRgb old;
    std::vector<QPoint> waiting;
};

} // namespace

void floodFill(QImage& image, QPoint from, QRgb colour)
{
    if (image.valid(from))
        Filling(image, from).fillWith(colour);
}
