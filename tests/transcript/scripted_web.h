// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "support/http_server.h"
#include "transcript/transcript.h"

namespace tarnwick::testing {

/// Two web servers, "alpha" and "beta", that keep every request until they are told to answer it, so that the answers
/// come in an order of the test's choice. Each request is written down when it has arrived.
class ScriptedWeb {
 public:
  using Handler = HttpServer::Handler;

  explicit ScriptedWeb(Transcript& transcript);

  /// The address of `target` at a server.
  std::string url(const std::string& server, const std::string& target) const { return serverOf(server).url(target); }

  /// What is answered to requests for `path` from now on. Of all other paths both servers know nothing.
  void page(const std::string& path, HttpResponse response);
  void page(const std::string& path, Handler handler) { pages_[path] = std::move(handler); }

  /// Paths that are answered before all others as soon as they have been asked for, the first one first. Those not
  /// listed are answered in the order in which they came.
  void answerFirst(std::vector<std::string> paths) { first_ = std::move(paths); }
  /// Paths that are never answered.
  void keepSilent(std::set<std::string> paths) { silent_ = std::move(paths); }
  /// Has `action` done once, just before the next answer to a request for `path`.
  void beforeAnswer(const std::string& path, std::function<void()> action) { before_[path] = std::move(action); }

  /// How many requests wait for their answer.
  std::size_t waiting() const { return alpha_->held().size() + beta_->held().size(); }
  /// Answers one request; false when there is none but those that are never answered.
  bool answerOne();

 private:
  struct Asked {
    HttpServer* server;
    std::string target;
  };

  void take(const std::string& name, HttpServer& server);
  std::vector<Asked> answerable() const;
  const HttpServer& serverOf(const std::string& name) const { return name == "alpha" ? *alpha_ : *beta_; }

  Transcript& transcript_;
  HttpServer one_;
  HttpServer another_;
  // In the order of their ports: addresses are sorted in reports.
  HttpServer* alpha_ = one_.port() < another_.port() ? &one_ : &another_;
  HttpServer* beta_ = alpha_ == &one_ ? &another_ : &one_;
  std::map<std::string, Handler> pages_;
  std::vector<std::string> first_;
  std::set<std::string> silent_;
  std::map<std::string, std::function<void()>> before_;
};

}  // namespace tarnwick::testing
