#include "ui/SunburstLayout.h"

#include <algorithm>

void SunburstLayout::build(const FolderNode& centre)
{
    m_centre = &centre;
    m_segments.clear();
    m_ringStart.assign(1, 0);
    if (centre.bytes > 0)
        addChildren(centre, -1, 0, 0, 360);
    // Breadth first: the segments of each ring follow those of the ring inside it, in the
    // clockwise order of their parents, so each ring stays sorted by angle.
    for (int ring = 1; ring < rings; ++ring) {
        const size_t from = m_ringStart.back();
        const size_t to = m_segments.size();
        m_ringStart.push_back(to);
        for (size_t i = from; i < to; ++i) {
            const Segment parent = m_segments[i];
            if (parent.part == Part::folder && parent.node->bytes > 0)
                addChildren(*parent.node, int(i), ring, parent.start, parent.span);
        }
    }
    m_ringStart.push_back(m_segments.size());
}

void SunburstLayout::addChildren(const FolderNode& folder, int parent, int ring, double start, double span)
{
    const double perByte = span / static_cast<double>(folder.bytes);
    double at = start;
    qint64 smaller = folder.foldedBytes;
    for (const FolderNode& child : folder.children) {
        const double width = static_cast<double>(child.bytes) * perByte;
        if (width < thinnest) {
            smaller += child.bytes;
            continue;
        }
        m_segments.push_back({Part::folder, &child, ring, parent, at, width, child.bytes});
        at += width;
    }
    if (static_cast<double>(folder.ownBytes) * perByte >= thinnest) {
        const double width = static_cast<double>(folder.ownBytes) * perByte;
        m_segments.push_back({Part::files, &folder, ring, parent, at, width, folder.ownBytes});
        at += width;
    } else {
        smaller += folder.ownBytes;
    }
    if (smaller > 0)
        m_segments.push_back({Part::smaller, &folder, ring, parent, at, start + span - at, smaller});
}

int SunburstLayout::segmentAt(int ring, double degrees) const
{
    if (ring < 0 || size_t(ring) + 1 >= m_ringStart.size())
        return -1;
    const auto first = m_segments.begin() + qsizetype(m_ringStart[size_t(ring)]);
    const auto last = m_segments.begin() + qsizetype(m_ringStart[size_t(ring) + 1]);
    const auto after = std::upper_bound(first, last, degrees, [](double value, const Segment& segment) {
        return value < segment.start;
    });
    if (after == first)
        return -1;
    const auto found = after - 1;
    return degrees < found->start + found->span ? int(found - m_segments.begin()) : -1;
}

int SunburstLayout::sibling(int index, int step) const
{
    if (index < 0)
        return m_segments.empty() ? -1 : 0;
    const int ring = m_segments.at(size_t(index)).ring;
    const int first = int(m_ringStart[size_t(ring)]);
    const int count = int(m_ringStart[size_t(ring) + 1]) - first;
    return first + ((index - first + step) % count + count) % count;
}

int SunburstLayout::firstChild(int index) const
{
    if (index < 0)
        return m_segments.empty() ? -1 : 0;
    const auto found = std::find_if(m_segments.begin() + index, m_segments.end(),
                                    [index](const Segment& segment) { return segment.parent == index; });
    return found == m_segments.end() ? -1 : int(found - m_segments.begin());
}
