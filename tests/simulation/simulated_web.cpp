// SPDX-License-Identifier: MIT
#include "simulation/simulated_web.h"

#include <functional>
#include <utility>

#include "simulation/simulated_memory.h"

namespace tarnwick::simulation {

namespace {

constexpr std::size_t kLongPage = 12'000;

}  // namespace

class SimulatedWeb::Control final : public TransferControl {
 public:
  explicit Control(SimulatedWeb& web) : web_(web), next_(web.agenda_) {}

  void execute(Request request) override {
    const SimulatedMemory::OfWorld ours;
    executing_ = true;
    taken_ = {};
    if (web_.onRequest) {
      web_.onRequest(request);
    }
    Answer answer = web_.answerTo(request);
    url_ = request.url;
    web_.begins(url_);
    result_ = std::move(answer.result);
    next_.in(answer.after, [this] { end(); });
    if (web_.onBegin) {
      web_.onBegin();
    }
  }
  bool stillExecuting() const override { return executing_; }
  ~Control() override { leave(); }
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  void cancel() override {
    next_.cancel();
    leave();
  }
  TransferResult takeResult() override { return std::exchange(taken_, {}); }
  void onStateChanged(std::function<void(int state)> handler) override { stateChanged_ = std::move(handler); }
  void onIdle(std::function<void()> handler) override { idle_ = std::move(handler); }

 private:
  void leave() {
    if (std::exchange(executing_, false)) {
      web_.ends(url_);
    }
  }
  void end() {
    taken_ = std::move(result_);
    if (web_.onAnswer) {
      web_.onAnswer(url_, taken_);
    }
    const SimulatedMemory::OfProgram program;
    if (stateChanged_) {
      stateChanged_(taken_.fault == TransferFault::none ? transfer_state::responseCompleted : transfer_state::error);
    }
    leave();
    if (idle_) {
      const auto idle = idle_;  // it may destroy this control
      idle();
    }
  }

  SimulatedWeb& web_;
  Appointment next_;
  std::function<void(int)> stateChanged_;
  std::function<void()> idle_;
  std::string url_;
  TransferResult result_;
  TransferResult taken_;
  bool executing_ = false;
};

std::unique_ptr<TransferControl> SimulatedWeb::makeTransferControl() { return std::make_unique<Control>(*this); }

void SimulatedWeb::setMood(const std::string& url, SiteMood mood) { sites_[url].mood = mood; }

std::string SimulatedWeb::hostOf(const std::string& url) {
  const std::size_t begin = url.find("//") + 2;
  return url.substr(begin, url.find('/', begin) - begin);
}

// More than five there are only where that is wished, and then a host is asked for two pages at a time.
void SimulatedWeb::begins(const std::string& url) {
  constexpr std::size_t kMost = 12;
  constexpr std::size_t kUsual = 5;
  constexpr std::size_t kOfOneHost = 2;
  const std::string host = hostOf(url);
  inFlight_.insert(host);
  const std::size_t all = inFlight_.size();
  if (onTooMany && !isShared &&
      (all > (mayBeMany ? kMost : kUsual) || ((sparesHosts || all > kUsual) && inFlight_.count(host) > kOfOneHost))) {
    onTooMany(std::to_string(all) + " requests are on their way, " + std::to_string(inFlight_.count(host)) +
              " of them to " + host);
  }
}

std::string SimulatedWeb::pageOf(const std::string& url, std::uint64_t edition) {
  return "<html><body><h1>It's " + url + "</h1>\r\n<p>edition " + std::to_string(edition) + "</p>" +
         std::string(edition % 4 == 3 ? kLongPage : 0, 'x') + "</body></html>\n";
}

SimulatedWeb::Answer SimulatedWeb::answerTo(const Request& request) {
  ++requests_;
  Site& site = sites_[request.url];
  const Time limit = request.timeout.count() > 0 ? request.timeout : kDefaultRequestTimeout;
  Answer answer{Time(chance_.between(20, 400)), {TransferFault::none, "", pageOf(request.url, site.edition)}};
  const auto fault = [&](TransferFault number, std::string cause) { answer.result = {number, std::move(cause), ""}; };
  switch (site.mood) {
    case SiteMood::steady:
      break;
    case SiteMood::changing:
      ++site.edition;
      break;
    case SiteMood::flapping:
      answer.result.page = pageOf(request.url, site.edition + chance_.below(2));
      break;
    case SiteMood::slow:
      answer.after = Time(chance_.between(0, 3 * limit.count() / 2));
      break;
    case SiteMood::silent:
      answer.after = limit;
      break;
    case SiteMood::cut:
      fault(TransferFault::dropped, "The connection was closed before the page was complete.");
      break;
    case SiteMood::refused:
      fault(TransferFault::refused, "The connection was refused.");
      break;
    case SiteMood::unknown:
      answer.after = Time(chance_.between(0, 5000));
      fault(TransferFault::nameLookup, "The name of the host could not be looked up.");
      break;
    case SiteMood::redirecting:
      fault(TransferFault::tooManyRedirects, "The site redirects in a circle.");
      break;
    case SiteMood::untrusted:
      fault(TransferFault::certificate, "The certificate of the host has run out.");
      break;
    case SiteMood::shortage:
      answer.after = Time(0);
      fault(TransferFault::shortage, "There is no file handle left.");
      break;
  }
  if (answer.after >= limit) {
    answer.after = limit;
    fault(TransferFault::timeOut, std::string(kTookTooLong) +
                                      std::to_string(std::chrono::floor<std::chrono::seconds>(limit).count()) +
                                      " seconds.");
  }
  journal_.addTick("fetch", request.url);
  return answer;
}

}  // namespace tarnwick::simulation
