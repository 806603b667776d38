// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <optional>

#include "base/host_of_address.h"
#include "cli/terminal/consent.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/text_grid.h"
#include "cli/verbs/delivery_words.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "delivery/delivery.h"
#include "platform/interrupts.h"

namespace tarnwick {
namespace {

using State = OutboxRow::State;

struct OutboxVerbOptions {
  std::string action = "list";
  std::vector<std::int64_t> ids;
  bool waiting = false;
  bool sent = false;
  bool failed = false;
  bool yes = false;
  bool json = false;
};

std::string_view wordOf(State state) {
  constexpr std::array<std::string_view, 3> kWords{"waiting", "sent", "failed"};
  return kWords.at(static_cast<std::size_t>(state));
}

/// The alerts of the outbox, and the names of the channels.
class OutboxView {
 public:
  explicit OutboxView(m& data) : data_(data), channels_(data.channels()) {}

  std::vector<OutboxRow> rows(const std::vector<State>& states) {
    std::vector<OutboxRow> all;
    for (const State state : states) {
      std::ranges::move(data_.outboxRows(state), std::back_inserter(all));
    }
    std::ranges::sort(all, {}, &OutboxRow::id);
    return all;
  }
  std::string channelOf(const OutboxRow& row) const {
    const auto channel = std::ranges::find(channels_, row.idChannel, &Channel::id);
    return channel == channels_.end() ? std::string() : channel->name;
  }
  JsonValue json(const OutboxRow& row) const {
    const bool waits = row.state == State::waiting;
    return {{"id", row.id},
            {"made", dateTimeText(row.alert.made)},
            {"idSite", row.alert.idSite},
            {"url", jsonText(row.alert.url)},
            {"event", jsonText(row.alert.event)},
            {"cause", jsonText(row.alert.cause)},
            {"channel", jsonText(channelOf(row))},
            {"state", std::string(wordOf(row.state))},
            {"tries", row.tries},
            {"lastTry", row.lastTry ? JsonValue(dateTimeText(*row.lastTry)) : JsonValue()},
            {"nextTry", waits ? JsonValue(dateTimeText(row.nextTry)) : JsonValue()},
            {"deadline", waits ? JsonValue(dateTimeText(row.deadline)) : JsonValue()},
            {"answer", jsonText(row.answer)}};
  }
  void print(Console& console, const std::vector<OutboxRow>& rows) const {
    TextGrid grid({{"ID", TextGrid::Align::right},
                   {"MADE"},
                   {"SITE"},
                   {"EVENT"},
                   {"CHANNEL"},
                   {"STATE"},
                   {"TRIES", TextGrid::Align::right},
                   {"NEXT TRY"},
                   {"ANSWER"}});
    for (const OutboxRow& row : rows) {
      grid.addRow({{std::to_string(row.id)},
                   {dateTimeText(row.alert.made)},
                   {row.alert.idSite == 0 ? "" : std::to_string(row.alert.idSite) + " " + hostOfAddress(row.alert.url)},
                   {row.alert.event},
                   {channelOf(row)},
                   {std::string(wordOf(row.state))},
                   {std::to_string(row.tries)},
                   {row.state == State::waiting ? dateTimeText(row.nextTry) : ""},
                   {row.answer}});
    }
    grid.print(console);
  }
  void show(Console& console, bool json, const std::vector<OutboxRow>& rows) const {
    if (!json) {
      print(console, rows);
      return;
    }
    JsonArray array(console);
    std::ranges::for_each(rows, [&](const OutboxRow& row) { array.add(this->json(row)); });
    array.end();
  }

 private:
  m& data_;
  std::vector<Channel> channels_;
};

std::string alertsText(std::int64_t count) { return std::to_string(count) + (count == 1 ? " alert" : " alerts"); }

int list(Tool& tool, const OutboxVerbOptions& options) {
  const bool all = !options.waiting && !options.sent && !options.failed;
  std::vector<State> states;
  const auto choose = [&](bool chosen, State state) {
    if (chosen || all) {
      states.push_back(state);
    }
  };
  choose(options.waiting, State::waiting);
  choose(options.sent, State::sent);
  choose(options.failed, State::failed);
  OutboxView view(tool.data());
  std::vector<OutboxRow> rows = view.rows(states);
  if (!options.ids.empty()) {
    std::erase_if(rows,
                  [&](const OutboxRow& row) { return std::ranges::find(options.ids, row.id) == options.ids.end(); });
  }
  if (rows.empty() && !options.json) {
    tool.console().complain("There is no such alert in the outbox.");
    return exit_status::ok;
  }
  view.show(tool.console(), options.json, rows);
  return exit_status::ok;
}

/// The ids that are meant: those given, or all that wait or were given up.
std::vector<OutboxRow> meant(OutboxView& view, const std::vector<std::int64_t>& ids) {
  std::vector<OutboxRow> rows = view.rows({State::waiting, State::failed});
  if (!ids.empty()) {
    for (const std::int64_t id : ids) {
      if (std::ranges::find(rows, id, &OutboxRow::id) == rows.end()) {
        throw std::runtime_error("No alert " + std::to_string(id) +
                                 " waits or was given up. They are listed by: tarnwickctl outbox");
      }
    }
    std::erase_if(rows, [&](const OutboxRow& row) { return std::ranges::find(ids, row.id) == ids.end(); });
  }
  return rows;
}

int retry(Tool& tool, const OutboxVerbOptions& options) {
  m& data = tool.data();
  OutboxView view(data);
  const std::vector<OutboxRow> before = meant(view, options.ids);
  if (before.empty() && !options.json) {
    tool.console().tell("No alert is waiting.");
    return exit_status::ok;
  }
  const Interrupts interrupts([&tool] { tool.services().pump.close(); });
  Delivery& delivery = data.delivery();
  data.retryAlerts(options.ids, tool.services().clock.localNow());
  delivery.deliver();
  awaitDelivery(tool.services(), [&] { return delivery.hasDue(); });
  delivery.stop();
  std::vector<OutboxRow> after = view.rows({State::waiting, State::sent, State::failed});
  std::erase_if(
      after, [&](const OutboxRow& row) { return std::ranges::find(before, row.id, &OutboxRow::id) == before.end(); });
  view.show(tool.console(), options.json, after);
  const auto left = std::ranges::count_if(after, [](const OutboxRow& row) { return row.state != State::sent; });
  if (left > 0) {
    tool.console().complain("Not delivered yet: " + alertsText(left) + ".");
  }
  return left > 0 ? exit_status::down : exit_status::ok;
}

int drop(Tool& tool, const OutboxVerbOptions& options) {
  OutboxView view(tool.data());
  const std::size_t count = meant(view, options.ids).size();
  if (count > 0 && !consents(tool.console(), options.yes,
                             "Drop " + alertsText(static_cast<std::int64_t>(count)) +
                                 " for good? Nobody will be told of what they say.")) {
    return exit_status::failed;
  }
  const std::int64_t dropped = count == 0 ? 0 : tool.data().dropAlerts(options.ids);
  if (options.json) {
    sayJson(tool.console(), {{"dropped", dropped}});
  } else {
    tool.console().tell("Dropped: " + alertsText(dropped) + ".");
  }
  return exit_status::ok;
}

int outbox(Tool& tool, const OutboxVerbOptions& options) {
  return options.action == "retry"  ? retry(tool, options)
         : options.action == "drop" ? drop(tool, options)
                                    : list(tool, options);
}

}  // namespace

Verb outboxVerb() {
  auto options = std::make_shared<OutboxVerbOptions>();
  return Verb{
      "outbox",
      "Show the alerts on their way through channels, have them tried now, or drop them",
      {{.name = "ACTION",
        .target = &options->action,
        .meaning = "list (default), retry, drop",
        .oneOf = {"list", "retry", "drop"}},
       {.name = "ID", .target = &options->ids, .meaning = "The alerts; all of them without one"},
       {"--waiting", &options->waiting, "List those that wait"},
       {"--sent", &options->sent, "List those that have arrived"},
       {"--failed", &options->failed, "List those that were given up"},
       {"--yes", &options->yes, "Do not ask before alerts are dropped"},
       jsonOption(options->json)},
      "An alert that cannot be delivered is tried again after 1, 5, 15 and then every 60 minutes, for a day, by "
      "a run or a window that is on, and by each check. The answer is that of who was asked.\n"
      "Exit status of retry: 0 when all were delivered, 1 when some were not.\n" +
          examples({{"outbox", "what has become of the alerts"},
                    {"outbox retry", "try all that wait or were given up, now"},
                    {"outbox drop 17", "have one not told any more"}}),
      [options](Tool& tool) { return outbox(tool, *options); }};
}

}  // namespace tarnwick
