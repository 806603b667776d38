// SPDX-License-Identifier: MIT
#include "report/page_parts.h"

#include "history/history_text.h"

namespace tarnwick::page_parts {
namespace {

constexpr std::size_t kMostOutagesOfACell = 5;

constexpr const char* kStyle = R"(
:root { color-scheme: light dark; --page: #ffffff; --text: #1b1f24; --dim: #5b626b; --line: #dfe3e8; }
@media (prefers-color-scheme: dark) { :root { --page: #15181c; --text: #e7e9ec; --dim: #9ba2ab; --line: #2d333a; } }
* { box-sizing: border-box; }
body { margin: 0 auto; padding: 1.5rem 1rem 3rem; max-width: 60rem; background: var(--page); color: var(--text);
  font: 15px/1.45 system-ui, sans-serif; }
h1 { font-size: 1.5rem; margin: 0 0 .25rem; }
h2 { font-size: 1rem; margin: 0; overflow-wrap: anywhere; }
p { margin: .25rem 0; }
.dim, th { color: var(--dim); font-weight: normal; }
.number { text-align: right; font-variant-numeric: tabular-nums; white-space: nowrap; }
section { border-top: 1px solid var(--line); padding: 1rem 0; }
.head { display: flex; gap: .6rem; align-items: baseline; margin-bottom: .5rem; }
.head h2 { flex: 1; }
.state { white-space: nowrap; }
.state::before { content: ""; display: inline-block; width: .65rem; height: .65rem; margin-right: .4rem;
  border-radius: 50%; background: var(--unknown); }
.state.up::before { background: var(--up); }
.state.down { font-weight: 600; }
.state.down::before { background: var(--down); }
.stripe { display: flex; height: 1.1rem; border-radius: .2rem; overflow: hidden; background: var(--unknown); }
.stripe i { min-width: 0; }
.stripe .mostly, .stripe .partly, .stripe .down, .key .mostly, .key .partly, .key .down { min-width: 2px; }
i.up { background: var(--up); } i.mostly { background: var(--mostly); } i.partly { background: var(--partly); }
i.down { background: var(--down); } i.unknown { background: var(--unknown); }
.period { display: grid; grid-template-columns: 2.8rem 1fr 4.6rem 14.5rem; gap: .1rem .6rem; align-items: center;
  margin: .25rem 0; }
.scroll { overflow-x: auto; }
table { border-collapse: collapse; width: 100%; }
th, td { text-align: left; vertical-align: top; padding: .25rem .6rem .25rem 0; border-bottom: 1px solid var(--line); }
th.number, td.number { text-align: right; }
.outages th:last-child { width: 100%; }
.when { white-space: nowrap; }
td.address { overflow-wrap: anywhere; min-width: 9rem; }
details { margin-top: .5rem; }
summary { cursor: pointer; color: var(--dim); }
.key { display: flex; flex-wrap: wrap; gap: .3rem 1rem; margin: 1rem 0; color: var(--dim); }
.key i { display: inline-block; width: .9rem; height: .9rem; border-radius: .15rem; margin-right: .35rem;
  vertical-align: -.1rem; }
.banner { border-left: .4rem solid var(--up); padding: .2rem 0 .2rem .8rem; margin-bottom: 1.25rem; }
.banner.down { border-color: var(--down); } .banner.unknown { border-color: var(--unknown); }
.row { display: grid; grid-template-columns: minmax(0, 1fr) 15.5rem 12rem 4.6rem; gap: .3rem .8rem; align-items: center;
  border-top: 1px solid var(--line); padding: .6rem 0; }
@media (max-width: 40rem) { .period { grid-template-columns: 2.8rem 1fr 4.6rem; }
  .period .took { grid-column: 2 / 4; text-align: left; margin-bottom: .3rem; } .wide { display: none; }
  .head { flex-direction: column; gap: .1rem; } .row { grid-template-columns: 1fr 4.6rem; }
  .row h2, .row .state { grid-column: 1 / 3; } }
)";

const char* classOf(CellState state) {
  switch (state) {
    case CellState::up:
      return "up";
    case CellState::mostly:
      return "mostly";
    case CellState::partly:
      return "partly";
    case CellState::down:
      return "down";
    case CellState::unknown:
      break;
  }
  return "unknown";
}

std::string coloursOfCells(bool dark) {
  std::string colours = ":root {";
  for (const CellState state :
       {CellState::up, CellState::mostly, CellState::partly, CellState::down, CellState::unknown}) {
    colours.append(" --").append(classOf(state)).append(": ").append(colourOf(state, dark)).append(";");
  }
  return colours + " }";
}

std::string titleOf(Stretch time, const TimeSum& sum, const std::vector<Outage>& outages, Causes causes) {
  std::string title = minuteText(time.from) + " to " + minuteText(time.until) + ": ";
  if (sum.known().count() == 0) {
    return title + "unknown";
  }
  title += uptimeText(sum.uptime());
  if (sum.down.count() > 0) {
    title += ", down for " + lengthText(sum.down);
  }
  std::size_t told = 0;
  for (const Outage& outage : outages) {
    if (outage.began >= time.until || outage.ended.value_or(time.until) <= time.from) {
      continue;
    }
    if (told++ == kMostOutagesOfACell) {
      return title + "\n...";
    }
    title += "\n" + minuteText(outage.began) + (outage.ended ? " to " + minuteText(*outage.ended) : ", still down");
    if (causes == Causes::told) {
      title += ": " + outage.cause;
    }
  }
  return title;
}

bool isSeenAsOne(const TimeSum& cell, const TimeSum& other) {
  const CellState state = stateOf(cell);
  return state == stateOf(other) && (state == CellState::up || state == CellState::unknown);
}

}  // namespace

std::string escaped(std::string_view text) {
  std::string safe;
  for (const char c : text) {
    switch (c) {
      case '<':
        safe += "&lt;";
        break;
      case '>':
        safe += "&gt;";
        break;
      case '&':
        safe += "&amp;";
        break;
      case '"':
        safe += "&quot;";
        break;
      case '\n':
        safe += "&#10;";
        break;
      default:
        safe += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
    }
  }
  return safe;
}

std::string minuteText(Moment moment) {
  constexpr std::size_t kWithoutSeconds = 16;
  return dateTimeText(localTimeAt(moment)).substr(0, kWithoutSeconds);
}

std::string page(std::string_view title, std::string_view body) {
  std::string html = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n";
  html += "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>";
  html.append(escaped(title))
      .append("</title>\n<style>")
      .append(coloursOfCells(false) + "\n@media (prefers-color-scheme: dark) { " + coloursOfCells(true) + " }")
      .append(kStyle)
      .append("</style>\n</head>\n<body>\n");
  return html.append(body).append("</body>\n</html>\n");
}

std::string stripe(const PeriodView& view, const std::vector<Outage>& outages, Causes causes) {
  std::string html = "<div class=\"stripe\">";
  for (std::size_t first = 0; first < view.cells.size();) {
    std::size_t behind = first + 1;
    TimeSum sum = view.cells[first];
    while (behind < view.cells.size() && isSeenAsOne(view.cells[first], view.cells[behind])) {
      sum.up += view.cells[behind++].up;
    }
    const std::string title = titleOf({view.edges[first], view.edges[behind]}, sum, outages, causes);
    html.append("<i class=\"")
        .append(classOf(stateOf(sum)))
        .append("\" style=\"flex:" + std::to_string(behind - first));
    html.append("\" title=\"").append(escaped(title)).append("\"></i>");
    first = behind;
  }
  return html + "</div>";
}

std::string legend() {
  return "<p class=\"key\"><span><i class=\"up\"></i>up</span><span><i class=\"mostly\"></i>up 95 % and more</span>"
         "<span><i class=\"partly\"></i>up less</span><span><i class=\"down\"></i>down</span><span><i "
         "class=\"unknown\"></i>unknown or planned</span></p>\n";
}

}  // namespace tarnwick::page_parts
