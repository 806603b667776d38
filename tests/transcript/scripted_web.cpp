// SPDX-License-Identifier: MIT
#include "transcript/scripted_web.h"

#include <algorithm>

namespace tarnwick::testing {
namespace {

std::string pathOf(const std::string& target) { return target.substr(0, target.find('?')); }

}  // namespace

ScriptedWeb::ScriptedWeb(Transcript& transcript) : transcript_(transcript) {
  take("alpha", *alpha_);
  take("beta", *beta_);
}

void ScriptedWeb::take(const std::string& name, HttpServer& server) {
  const std::string port = std::to_string(server.port());
  transcript_.rename("127.0.0.1:" + port, "127.0.0.1:<" + name + ">");
  transcript_.rename("127.0.0.1 port " + port, "127.0.0.1 port <" + name + ">");
  server.handleOthers([this, name](const HttpRequest& request) {
    transcript_.add("wire", "at " + name + ":\n" + request.wire);
    const auto page = pages_.find(request.path());
    HttpResponse response =
        page == pages_.end() ? HttpResponse{.status = 404, .body = "no such page"} : page->second(request);
    response.hold = true;
    return response;
  });
}

void ScriptedWeb::page(const std::string& path, HttpResponse response) {
  pages_[path] = [response = std::move(response)](const HttpRequest&) { return response; };
}

std::vector<ScriptedWeb::Asked> ScriptedWeb::answerable() const {
  std::vector<Asked> all;
  for (HttpServer* const server : {alpha_, beta_}) {
    for (const std::string& target : server->held()) {
      if (!silent_.contains(pathOf(target))) {
        all.push_back({server, target});
      }
    }
  }
  const auto rank = [this](const Asked& asked) {
    return std::ranges::find(first_, pathOf(asked.target)) - first_.begin();
  };
  std::ranges::stable_sort(all, {}, rank);
  return all;
}

bool ScriptedWeb::answerOne() {
  const std::vector<Asked> all = answerable();
  if (all.empty()) {
    return false;
  }
  const Asked next = all.front();
  if (auto action = before_.extract(pathOf(next.target)); !action.empty()) {
    action.mapped()();
  }
  transcript_.add("web", "answers " + next.target);
  next.server->release(next.target);
  return true;
}

}  // namespace tarnwick::testing
