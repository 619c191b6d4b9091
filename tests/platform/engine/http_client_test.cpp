// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/http_client.h"
#include "platform/engine/http_address.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <netdb.h>

#include <atomic>
#include <condition_variable>
#include <csignal>
#include <cstdlib>
#include <mutex>

#include "platform/services/result.h"
#include "tests/support/environment.h"
#include "tests/support/scripted_server.h"
#include "tests/support/temporary_folder.h"

namespace {

constexpr const char* slowName = "slow.invalid";
constexpr const char* otherName = "other.invalid";  // this machine, under a name that does not say so

// A name service that answers for that name only when it is let go.
struct SlowNames {
  void wait() {
    std::unique_lock lock(mutex);
    released.wait_for(lock, std::chrono::seconds(30), [this] { return isReleased; });
    hasAnswered = true;
  }
  void release() {
    const std::lock_guard lock(mutex);
    isReleased = true;
    released.notify_all();
  }
  std::mutex mutex;
  std::condition_variable released;
  bool isReleased = false;
  std::atomic<bool> hasAnswered = false;
};

SlowNames& slowNames() {
  static auto* const names = new SlowNames;  // for ever: whoever asked may end later than the tests
  return *names;
}

}  // namespace

// The system's name service, but for those two names.
extern "C" int getaddrinfo(const char* name, const char* service, const addrinfo* hints, addrinfo** found) {
  if (name != nullptr && std::string_view(name) == slowName) {
    slowNames().wait();
    return EAI_AGAIN;
  }
  static const auto system = reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
  if (name != nullptr && std::string_view(name) == otherName) return system("127.0.0.1", service, hints, found);
  return system(name, service, hints, found);
}

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using test::Reply;
using test::ScriptedServer;
using test::SeenRequest;
using Arrival = HttpAnswer::Arrival;

TEST(HttpAddress, isHttpWithAHostAndWithoutCredentials) {
  for (const char* address : {"http://a", "https://a/b.plist", "HTTP://a:80/", "http://[::1]:8080/x", "http://a/b@c"}) {
    EXPECT_TRUE(isHttpAddress(address)) << address;
  }
  for (const char* address : {"", "http", "http://", "https:///b", "ftp://a", "file:///a", "http:/a", "a/b",
                              " http://a", "http://user:word@a/b", "http://user@a", "http://a b", "http://a\n"}) {
    EXPECT_FALSE(isHttpAddress(address)) << address;
  }
}

TEST(HttpClient, sendsAndReceivesWhatItIsTold) {
  const ScriptedServer server([](const SeenRequest& request) {
    return Reply{207, {"X-Name:  a value "}, request.method + request.header("depth") + request.body};
  });
  HttpClient client({server.address("/a%20b"), {}, {}});
  const std::string body("\0\xff<&>", 5);
  const HttpAnswer answer = client.send({"PROPFIND", {"Depth: 0"}, body}, 10s);
  EXPECT_TRUE(answer.isWhole());
  EXPECT_EQ(answer.status, 207);
  EXPECT_EQ(answer.header("x-name"), "a value");
  EXPECT_EQ(answer.header("x-other"), "");
  EXPECT_EQ(answer.body, "PROPFIND0" + body);
  EXPECT_EQ(server.requests()[0].path, "/a%20b");
  EXPECT_TRUE(client.send({"GET", {}, {}}, 10s).isWhole());
  EXPECT_EQ(server.requests()[1].method, "GET");
  EXPECT_EQ(server.requests()[1].body, "");
  EXPECT_EQ(server.connections(), 1);
}

TEST(HttpClient, aKeptConnectionThatTheServerEndedIsReplaced) {
  int count = 0;
  const ScriptedServer server(
      [&](const SeenRequest&) { return Reply{200, {}, "x", Reply::Way(++count == 2 ? 5 : 0)}; });
  HttpClient client({server.address(), {}, {}});
  EXPECT_TRUE(client.send({"PUT", {}, "one"}, 10s).isWhole());
  EXPECT_TRUE(client.send({"PUT", {}, "two"}, 10s).isWhole());
  EXPECT_EQ(server.requests().back().body, "two");
  EXPECT_EQ(server.connections(), 2);
}

TEST(HttpClient, theHeadersOfAnInterimAnswerAreNotThoseOfTheAnswer) {
  const std::string early = "HTTP/1.1 103 Early Hints\r\nETag: \"early\"\r\n\r\n";
  const ScriptedServer server([&](const SeenRequest&) { return Reply{.headers = {"Allow: PUT"}, .interim = early}; });
  const HttpAnswer answer = HttpClient({server.address(), {}, {}}).send({"GET", {}, {}}, 10s);
  EXPECT_TRUE(answer.headers.contains("allow"));
  EXPECT_FALSE(answer.headers.contains("etag"));
}

TEST(HttpClient, credentialsComeFromTheUsersNetrcOnly) {
  const ScriptedServer server(
      [](const SeenRequest& request) { return Reply{200, {}, request.header("authorization")}; });
  const test::TemporaryFolder home;
  home.write(".netrc", "machine elsewhere login x password y\nmachine 127.0.0.1 login taro password pass-word\n");
  EXPECT_EQ(HttpClient({server.address(), home.at(".netrc"), {}}).send({"GET", {}, {}}, 10s).body,
            "Basic dGFybzpwYXNzLXdvcmQ=");
  home.write("other", "machine elsewhere login x password y\n");
  for (const char* netrc : {"other", "missing"}) {
    const HttpAnswer answer = HttpClient({server.address(), home.at(netrc), {}}).send({"GET", {}, {}}, 10s);
    EXPECT_TRUE(answer.isWhole()) << netrc;
    EXPECT_EQ(answer.body, "") << netrc;
  }
}

TEST(HttpAddress, isOfThisMachineByItsLoopbackAddressOrItsNameForIt) {
  for (const char* address : {"http://127.0.0.1", "http://127.9.8.7:8080/x", "http://localhost/x",
                              "HTTPS://LocalHost:1", "http://[::1]/", "http://[::1]:80"}) {
    EXPECT_TRUE(isLoopbackAddress(address)) << address;
  }
  for (const char* address :
       {"", "http://128.0.0.1", "http://127.0.0.1.example/", "http://127.1/", "http://localhost.example",
        "http://127.0.0.1:", "http://[::2]", "http://example/127.0.0.1", "http://example?localhost", "http://[::1].a",
        "http://0177.0.0.1", "http://127.0.0.1\\@example", "ftp://localhost"}) {
    EXPECT_FALSE(isLoopbackAddress(address)) << address;
  }
}

TEST(HttpClient, credentialsDoNotGoOutOverAnOpenConnectionUnlessTheyMay) {
  const ScriptedServer server([](const SeenRequest& request) {
    const std::string credentials = request.header("authorization");
    return Reply{credentials.empty() ? 401 : 200, {}, credentials};
  });
  const std::string port = server.address().substr(std::string("http://127.0.0.1").size());
  const test::TemporaryFolder home;
  home.write(".netrc", std::string("machine ") + otherName + " login taro password pass-word\n");
  HttpPlace place{"http://" + std::string(otherName) + port, home.at(".netrc"), {}};
  const HttpAnswer without = HttpClient(place).send({"GET", {}, {}}, 10s);
  EXPECT_EQ(without.status, 401);
  EXPECT_EQ(without.cause, Reason::plainPassword);
  place.allowsPlainPasswords = true;
  EXPECT_EQ(HttpClient(place).send({"GET", {}, {}}, 10s).body, "Basic dGFybzpwYXNzLXdvcmQ=");
  place.allowsPlainPasswords = false;
  place.netrc = home.at("missing");
  EXPECT_FALSE(HttpClient(place).send({"GET", {}, {}}, 10s).cause) << "there are none to be kept back";
}

TEST(HttpClient, thisMachineIsAskedWithoutAProxy) {
  const ScriptedServer proxy([](const SeenRequest&) { return Reply{500, {}, "proxy"}; });
  const ScriptedServer server([](const SeenRequest&) { return Reply{200, {}, "server"}; });
  const test::Environment behindIt({{"http_proxy", proxy.address()}, {"no_proxy", ""}, {"NO_PROXY", ""}});
  EXPECT_EQ(HttpClient({server.address(), {}, {}}).send({"GET", {}, {}}, 10s).body, "server");
  EXPECT_TRUE(proxy.requests().empty());
}

TEST(HttpClient, aRedirectionIsAnAnswerLikeAnyOther) {
  const ScriptedServer other([](const SeenRequest&) { return Reply{}; });
  const ScriptedServer server([&](const SeenRequest&) { return Reply{302, {"Location: " + other.address()}, ""}; });
  EXPECT_EQ(HttpClient({server.address(), {}, {}}).send({"GET", {}, {}}, 10s).status, 302);
  EXPECT_TRUE(other.requests().empty());
}

TEST(HttpClient, bodiesThatAreTooLargeAreNotTaken) {
  const ScriptedServer server([](const SeenRequest&) { return Reply{200, {}, std::string(largestHttpBody + 1, 'x')}; });
  HttpClient client({server.address(), {}, {}});
  const std::string large(largestHttpBody + 1, 'x');
  for (const HttpAnswer& answer : {client.send({"GET", {}, {}}, 60s), client.send({"PUT", {}, large}, 60s)}) {
    EXPECT_EQ(answer.arrival, Arrival::none);
    EXPECT_EQ(answer.cause, std::errc::file_too_large);
  }
  EXPECT_EQ(server.requests().size(), 1U);
}

TEST(HttpClient, withoutTimeNothingIsSent) {
  const ScriptedServer server([](const SeenRequest&) { return Reply{}; });
  EXPECT_EQ(HttpClient({server.address(), {}, {}}).send({"GET", {}, {}}, 0ms).arrival, Arrival::late);
  EXPECT_TRUE(server.requests().empty());
}

TEST(HttpClient, aNameServiceThatHangsIsNotWaitedFor) {
  {
    HttpClient client({std::string("http://") + slowName + "/", {}, {}});
    EXPECT_EQ(client.send({"GET", {}, {}}, 100ms).arrival, Arrival::late);
  }
  EXPECT_FALSE(slowNames().hasAnswered);
  slowNames().release();
}

TEST(HttpClient, leavesTheHandlingOfSignalsAsItWas) {
  const ScriptedServer server([](const SeenRequest&) { return Reply{}; });
  const auto mine = [](int) {};
  std::signal(SIGPIPE, mine);
  HttpClient({server.address(), {}, {}}).send({"GET", {}, {}}, 10s);
  EXPECT_EQ(std::signal(SIGPIPE, SIG_DFL), static_cast<void (*)(int)>(mine));
}

}  // namespace
}  // namespace tarvo
