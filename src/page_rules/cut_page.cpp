// SPDX-License-Identifier: MIT
#include "page_rules/cut_page.h"

#include <algorithm>

namespace tarnwick {
namespace {

/// Stands between two parts that were picked out, so that what leaves one cannot seem to have entered the other.
constexpr std::string_view kGap("\x1E\n", 2);

void unite(std::vector<ByteRange>& all, const std::vector<ByteRange>& more) {
  all.insert(all.end(), more.begin(), more.end());
  std::ranges::sort(all, {}, &ByteRange::begin);
  std::vector<ByteRange> united;
  for (const ByteRange& range : all) {
    if (!united.empty() && range.begin <= united.back().end) {
      united.back().end = std::max(united.back().end, range.end);
    } else {
      united.push_back(range);
    }
  }
  all = std::move(united);
}

std::vector<ByteRange> without(const std::vector<ByteRange>& kept, const std::vector<ByteRange>& left) {
  std::vector<ByteRange> rest;
  auto hole = left.begin();
  for (const ByteRange& range : kept) {
    std::size_t begin = range.begin;
    while (hole != left.end() && hole->end <= begin) {
      ++hole;
    }
    for (auto it = hole; it != left.end() && it->begin < range.end; ++it) {
      if (it->begin > begin) {
        rest.push_back({begin, it->begin});
      }
      begin = std::max(begin, it->end);
    }
    if (begin < range.end) {
      rest.push_back({begin, range.end});
    }
  }
  return rest;
}

}  // namespace

std::size_t CutPage::inPage(std::size_t at) const {
  std::size_t begin = 0;
  for (const ByteRange& range : kept) {
    const std::size_t length = range.end - range.begin;
    if (at < begin + length) {
      return range.begin + (at - begin);
    }
    begin += length + gap;
    if (at < begin || &range == &kept.back()) {
      return range.end;
    }
  }
  return kept.empty() ? 0 : kept.back().end;
}

CutPage cut(std::string_view page, const std::vector<PageRule>& rules) {
  CutPage result;
  std::vector<ByteRange> only;
  std::vector<ByteRange> left;
  bool picks = false;
  for (std::size_t i = 0; i < rules.size(); ++i) {
    const auto found = foundBy(rules[i], page);
    if (found.empty()) {
      result.idle.push_back(i);
    }
    const bool isPick = rules[i].use == PageRule::Use::compareOnly;
    picks = picks || isPick;
    unite(isPick ? only : left, found);
  }
  result.gap = picks ? kGap.size() : 0;
  if (!picks) {
    only = {{0, page.size()}};
  }
  result.kept = without(only, left);
  for (const ByteRange& range : result.kept) {
    result.text += result.text.empty() ? std::string_view() : kGap.substr(0, result.gap);
    result.text += page.substr(range.begin, range.end - range.begin);
  }
  return result;
}

Holes holesLeft(const CutPage& page, const Holes& holes) {
  Holes left;
  std::size_t begin = 0;
  auto hole = holes.begin();
  for (const ByteRange& range : page.kept) {
    while (hole != holes.end() && hole->begin < range.begin) {
      ++hole;
    }
    for (; hole != holes.end() && hole->end() <= range.end; ++hole) {
      left.push_back(*hole);
      left.back().begin = begin + (hole->begin - range.begin);
    }
    begin += range.end - range.begin + page.gap;
  }
  return left;
}

}  // namespace tarnwick
