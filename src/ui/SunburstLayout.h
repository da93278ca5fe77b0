#pragma once

#include "storage/FolderNode.h"

#include <QString>

#include <vector>

// Where each segment of the folder sunburst lies, worked out once per tree or zoom: rings of
// sub-folders around a centre folder, each folder's share of its parent's angle. Sub-folders
// too thin to see, and the folded remainder, merge into one "smaller items" segment per folder;
// its own files get a segment of their own when they are wide enough. Segments of one ring are
// stored together in clockwise order, so a point is found by a binary search.
class SunburstLayout {
public:
    static constexpr int rings = 5;
    static constexpr double thinnest = 0.6;  // degrees; thinner sub-folders are merged

    enum class Part { folder, files, smaller };
    struct Segment {
        Part part = Part::folder;
        const FolderNode* node = nullptr;  // the folder, or the folder whose files or rest it is
        int ring = 0;                      // 0 is the ring around the centre
        int parent = -1;                   // the segment one ring in, -1 for the centre
        double start = 0;                  // degrees clockwise from twelve o'clock
        double span = 0;
        qint64 bytes = 0;
    };

    // `centre` must outlive the layout.
    void build(const FolderNode& centre);

    const FolderNode* centre() const { return m_centre; }
    const std::vector<Segment>& segments() const { return m_segments; }
    // The segment at `degrees` (0 to 360, clockwise from twelve) in `ring`, or -1.
    int segmentAt(int ring, double degrees) const;
    // The next or previous segment around the same ring (wrapping), the first one a ring
    // further out that lies within `index`, and the one it lies within; -1 where there is none.
    int sibling(int index, int step) const;
    int firstChild(int index) const;
    int parentOf(int index) const { return index < 0 ? -1 : m_segments.at(size_t(index)).parent; }

private:
    void addChildren(const FolderNode& folder, int parent, int ring, double start, double span);

    const FolderNode* m_centre = nullptr;
    std::vector<Segment> m_segments;
    std::vector<size_t> m_ringStart;  // index of each ring's first segment, and the end
};
