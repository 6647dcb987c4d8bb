// SPDX-License-Identifier: MIT
// Reads points back out of RecordingCanvas call lines, for drawing-API tests whose expected coordinates
// hold sines and cosines and are compared within a tolerance rather than as text.
//
//   std::vector<KC2DPoint> ends = PointsOf(canvas.Calls(), "LineTo");   // every LineTo target, in order
//   KC2DPointList head = PolygonOf(canvas.Calls(), 0);                   // the first Polygon's points
#pragma once

#include <cstddef>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "ncappkit/foundation/KC2DElement.h"

namespace drawtest {

// "12.5,-3" -> (12.5, -3); the RecordingCanvas writes numbers locale-free, strtod reads them in the C locale.
inline KC2DPoint ParsePoint(const std::string& text) {
  const std::size_t comma = text.find(',');
  return KC2DPoint(std::strtod(text.substr(0, comma).c_str(), nullptr),
                   std::strtod(text.substr(comma + 1).c_str(), nullptr));
}

// The points of every call "verb(x,y)" in order, e.g. every LineTo target.
inline std::vector<KC2DPoint> PointsOf(const std::vector<std::string>& calls, const std::string& verb) {
  std::vector<KC2DPoint> points;
  const std::string prefix = verb + "(";
  for (const std::string& call : calls)
    if (call.rfind(prefix, 0) == 0)
      points.push_back(ParsePoint(call.substr(prefix.size(), call.size() - prefix.size() - 1)));
  return points;
}

// The points of the index-th "Polygon(x,y x,y ...)" call; empty when there is no such call.
inline KC2DPointList PolygonOf(const std::vector<std::string>& calls, std::size_t index) {
  std::size_t seen = 0;
  for (const std::string& call : calls) {
    if (call.rfind("Polygon(", 0) != 0)
      continue;
    if (seen++ != index)
      continue;
    KC2DPointList points;
    std::istringstream words(call.substr(8, call.size() - 9));
    std::string word;
    while (words >> word)
      points.push_back(ParsePoint(word));
    return points;
  }
  return {};
}

// How many calls start with `verb` followed by "(".
inline std::size_t CountOf(const std::vector<std::string>& calls, const std::string& verb) {
  std::size_t count = 0;
  for (const std::string& call : calls)
    if (call.rfind(verb + "(", 0) == 0)
      ++count;
  return count;
}

}  // namespace drawtest
