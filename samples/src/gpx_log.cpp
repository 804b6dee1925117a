#include <array>
#include <cstdio>

#include "route.h"

namespace pinmora::samples {

namespace {

void appendSegment(std::string &text, const std::vector<Fix> &fixes) {
    text += "    <trkseg>\n";
    for (const Fix &fix : fixes) {
        std::array<char, 160> line{};
        std::snprintf(line.data(), line.size(),
                      "      <trkpt lat=\"%.6f\" lon=\"%.6f\"><ele>%.1f</ele>"
                      "<time>2025-06-14T%02d:%02d:%02dZ</time></trkpt>\n",
                      fix.latitude, fix.longitude, fix.elevation, fix.second / 3600,
                      fix.second / 60 % 60, fix.second % 60);
        text += line.data();
    }
    text += "    </trkseg>\n";
}

} // namespace

std::string gpxLog() {
    std::vector<Fix> first = walk(Leg::Town, 12, 1);
    const std::vector<Fix> aboard = walk(Leg::Ship, 60, 2);
    first.insert(first.end(), aboard.begin() + 1, aboard.end()); // both hold the moment of leaving

    std::string text = R"(<?xml version="1.0" encoding="UTF-8"?>
<gpx version="1.1" creator="Larch Trail 5" xmlns="http://www.topografix.com/GPX/1/1" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" xsi:schemaLocation="http://www.topografix.com/GPX/1/1 http://www.topografix.com/GPX/1/1/gpx.xsd">
  <metadata>
    <name>From Zug over the lake to the Zugerberg</name>
    <desc>A made-up outing: no such walk was taken.</desc>
    <copyright author="The Pinmora project"><license>https://creativecommons.org/publicdomain/zero/1.0/</license></copyright>
    <time>2025-06-14T15:31:00Z</time>
  </metadata>
  <trk>
    <name>Zug - Oberwil - Zugerberg</name>
)";
    appendSegment(text, first);
    appendSegment(text, walk(Leg::Hill, 12, 3));
    text += "  </trk>\n</gpx>\n";
    return text;
}

} // namespace pinmora::samples
