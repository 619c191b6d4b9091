// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/style_server.h"

#include <algorithm>
#include <utility>

namespace tarvo::test {

Reply StyleServer::answer(const SeenRequest& request) {
  const int count = ++counts[request.method];
  std::optional<Reply> told = instead ? instead(request, count) : std::nullopt;
  Reply reply = told ? std::move(*told) : respond(request);
  if (afterwards) afterwards(request, count);
  return reply;
}

void StyleServer::hold(std::string bytes) {
  held = std::move(bytes);
  ++revision;
}

Reply StyleServer::respond(const SeenRequest& request) {
  if (request.path.ends_with(".lock/")) return folder(request);
  if (request.path.ends_with(".lock/owner")) {
    if (request.method == "PUT") owner = request.body;
    return {200, {}, owner};
  }
  if (request.method == "GET") return get(request);
  if (request.method == "PUT") return put(request);
  if (!locks) return {405, {}, "not here"};
  if (request.method == "LOCK") return lock();
  lockToken.clear();
  return {204, {}, ""};
}

Reply StyleServer::get(const SeenRequest& request) const {
  if (!held) return {404, {}, "nothing here"};
  Reply reply{200, {}, *held};
  if (tags != Tags::none) reply.headers.push_back("ETag: " + tag());
  const std::string range = request.header("range");
  if (!ranges || range.empty()) return reply;
  if (held->empty()) return {416, {"Content-Range: bytes */0"}, ""};
  const std::size_t last = std::min(std::stoul(range.substr(range.find('-') + 1)), held->size() - 1);
  reply.status = 206;
  reply.headers.push_back("Content-Range: bytes 0-" + std::to_string(last) + "/" + std::to_string(held->size()));
  reply.body.resize(last + 1);
  return reply;
}

Reply StyleServer::put(const SeenRequest& request) {
  const std::string match = request.header("if-match");
  const bool wantsNone = request.header("if-none-match") == "*";
  if (conditions && ((wantsNone && held) || (!match.empty() && (!held || match != tag())))) return {412, {}, "changed"};
  const bool isOwner = !lockToken.empty() && request.header("if") == "(" + lockToken + ")";
  if (isLockedByAnother || (!lockToken.empty() && !isOwner)) return {423, {}, "locked"};
  const int status = held ? 204 : 201;
  hold(request.body);
  return {status, {}, ""};
}

Reply StyleServer::folder(const SeenRequest& request) {
  if (request.method == "GET") return {isFolderThere ? 403 : 404, {}, ""};
  if (!folders || (request.method == "MKCOL" && isFolderThere)) return {405, {}, "not here"};
  const bool isMade = request.method == "MKCOL";
  isFolderThere = isMade;
  return {isMade ? 201 : 204, {}, ""};
}

Reply StyleServer::lock() {
  if (isLockedByAnother) return {423, {}, "locked"};
  if (!held) hold("");
  lockToken = "<opaquelocktoken:1234>";
  return {200, {"Lock-Token: " + lockToken}, "<prop/>"};
}

std::string StyleServer::tag() const {
  const std::string name = tags == Tags::same ? "\"same\"" : "\"v" + std::to_string(revision) + "\"";
  return tags == Tags::weak ? "W/" + name : name;
}

}  // namespace tarvo::test
