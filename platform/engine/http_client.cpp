// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/http_client.h"

#include <arpa/inet.h>
#include <curl/curl.h>
#include <netinet/in.h>
#include <signal.h>

#include <algorithm>
#include <fstream>
#include <utility>

#include "platform/engine/shared_library.h"
#include "platform/services/result.h"

namespace tarvo {
namespace {

struct CurlLibrary {
  SharedLibrary library{"libcurl.so.4"};
  decltype(&curl_easy_init) init = library.function<decltype(curl_easy_init)>("curl_easy_init");
  decltype(&curl_easy_reset) reset = library.function<decltype(curl_easy_reset)>("curl_easy_reset");
  decltype(&curl_easy_setopt) setopt = library.function<decltype(curl_easy_setopt)>("curl_easy_setopt");
  decltype(&curl_easy_perform) perform = library.function<decltype(curl_easy_perform)>("curl_easy_perform");
  decltype(&curl_easy_getinfo) getinfo = library.function<decltype(curl_easy_getinfo)>("curl_easy_getinfo");
  decltype(&curl_easy_cleanup) cleanup = library.function<decltype(curl_easy_cleanup)>("curl_easy_cleanup");
  decltype(&curl_slist_append) append = library.function<decltype(curl_slist_append)>("curl_slist_append");
  decltype(&curl_slist_free_all) freeAll = library.function<decltype(curl_slist_free_all)>("curl_slist_free_all");

  bool isWhole() const { return init && reset && setopt && perform && getinfo && cleanup && append && freeAll; }
};

// The TLS library writes to connections that the other side has closed.
class BrokenPipesIgnored {
 public:
  BrokenPipesIgnored() {
    struct sigaction ignore{};
    ignore.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &ignore, &former_);
  }
  ~BrokenPipesIgnored() { sigaction(SIGPIPE, &former_, nullptr); }
  BrokenPipesIgnored(const BrokenPipesIgnored&) = delete;
  BrokenPipesIgnored& operator=(const BrokenPipesIgnored&) = delete;

 private:
  struct sigaction former_{};
};

class HeaderList {
 public:
  HeaderList(const CurlLibrary& library, const std::vector<std::string>& lines) : library_(library) {
    for (const std::string& line : lines) add(line);
    add("Expect:");  // waiting for leave to send would use up the time
  }
  ~HeaderList() { library_.freeAll(list_); }
  HeaderList(const HeaderList&) = delete;
  HeaderList& operator=(const HeaderList&) = delete;
  curl_slist* get() const { return list_; }

 private:
  void add(const std::string& line) {
    if (curl_slist* longer = library_.append(list_, line.c_str())) list_ = longer;
  }
  const CurlLibrary& library_;
  curl_slist* list_ = nullptr;
};

std::size_t takeBody(char* bytes, std::size_t, std::size_t size, void* answer) {
  std::string& body = static_cast<HttpAnswer*>(answer)->body;
  if (size > largestHttpBody - body.size()) return 0;
  body.append(bytes, size);
  return size;
}

std::string lowered(std::string_view text) {
  std::string low(text);
  for (char& c : low) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return low;
}

std::string_view withoutBlanks(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  const std::size_t first = text.find_first_not_of(blanks);
  return first == std::string_view::npos ? "" : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::size_t takeHeader(char* bytes, std::size_t, std::size_t size, void* answer) {
  auto& headers = static_cast<HttpAnswer*>(answer)->headers;
  const std::string_view line(bytes, size);
  if (line.starts_with("HTTP/")) headers.clear();  // what came before was an interim answer or a proxy's
  const std::size_t colon = line.find(':');
  if (colon != std::string_view::npos) {
    headers[lowered(line.substr(0, colon))] = withoutBlanks(line.substr(colon + 1));
  }
  return size;
}

// Scheme and host, with its port, of an address; both in lower case, and empty for what is none.
struct AddressFront {
  std::string scheme, host;
};
AddressFront frontOf(std::string_view address) {
  const std::size_t schemeEnd = address.find("://");
  if (schemeEnd == std::string_view::npos) return {};
  const std::string_view rest = address.substr(schemeEnd + 3);
  return {lowered(address.substr(0, schemeEnd)), lowered(rest.substr(0, rest.find_first_of("/?#")))};
}

bool mayHaveCredentials(const HttpPlace& place) {
  return place.allowsPlainPasswords || frontOf(place.address).scheme == "https" || isLoopbackAddress(place.address);
}

std::error_code causeOf(CURLcode code) {
  switch (code) {
    case CURLE_OK: return {};
    case CURLE_OPERATION_TIMEDOUT: return std::make_error_code(std::errc::timed_out);
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY: return Reason::unknownHost;
    case CURLE_COULDNT_CONNECT: return std::make_error_code(std::errc::connection_refused);
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CACERT_BADFILE: return Reason::notTrusted;
    case CURLE_WRITE_ERROR:
    case CURLE_FILESIZE_EXCEEDED: return std::make_error_code(std::errc::file_too_large);
    default: return Reason::unreachable;
  }
}

}  // namespace

struct HttpClient::Handle {
  CurlLibrary library;
  CURL* curl = library.isWhole() ? library.init() : nullptr;
  bool keptBack = false;  // credentials that there are

  Handle() = default;
  ~Handle() {
    if (curl != nullptr) library.cleanup(curl);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  template <class Value>
  void set(CURLoption option, Value value) {
    library.setopt(curl, option, value);
  }
  // A reset keeps the open connections.
  void prepare(const HttpPlace& place) {
    library.reset(curl);
    set(CURLOPT_URL, place.address.c_str());
    set(CURLOPT_PROTOCOLS_STR, "http,https");
    set(CURLOPT_NOSIGNAL, 1L);
    set(CURLOPT_QUICK_EXIT, 1L);  // a name service that hangs is not waited for either
    if (isLoopbackAddress(place.address)) set(CURLOPT_NOPROXY, "*");
    const bool hasCredentials = static_cast<bool>(std::ifstream(place.netrc.text()));
    keptBack = hasCredentials && !mayHaveCredentials(place);
    if (hasCredentials && !keptBack) {
      set(CURLOPT_NETRC, static_cast<long>(CURL_NETRC_REQUIRED));
      set(CURLOPT_NETRC_FILE, place.netrc.text().c_str());
    }
    set(CURLOPT_SSL_VERIFYPEER, 1L);
    set(CURLOPT_SSL_VERIFYHOST, 2L);
    if (!place.authorities.empty()) set(CURLOPT_CAINFO, place.authorities.text().c_str());
  }
  void ask(const HttpRequest& request, const HeaderList& headers) {
    set(CURLOPT_CUSTOMREQUEST, request.method.c_str());
    set(CURLOPT_HTTPHEADER, headers.get());
    if (request.body.empty()) return;
    set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request.body.size()));
    set(CURLOPT_POSTFIELDS, &request.body.front());
  }
  void takeInto(HttpAnswer& answer) {
    set(CURLOPT_WRITEFUNCTION, takeBody);
    set(CURLOPT_WRITEDATA, &answer);
    set(CURLOPT_HEADERFUNCTION, takeHeader);
    set(CURLOPT_HEADERDATA, &answer);
    set(CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(largestHttpBody));
  }
};

bool isHttpAddress(std::string_view address) {
  const auto [scheme, host] = frontOf(address);
  const bool isPlain = std::none_of(address.begin(), address.end(), [](unsigned char c) { return c <= ' '; });
  return (scheme == "http" || scheme == "https") && !host.empty() && host.find('@') == std::string_view::npos &&
         isPlain;
}

bool isLoopbackAddress(std::string_view address) {
  if (!isHttpAddress(address)) return false;
  std::string host = frontOf(address).host;
  const std::size_t colon = host.find_last_not_of("0123456789");
  if (colon != std::string::npos && host[colon] == ':' && colon + 1 < host.size()) host.resize(colon);
  in_addr number{};
  const bool isNumber = inet_pton(AF_INET, host.c_str(), &number) == 1;
  return host == "localhost" || host == "[::1]" || (isNumber && (ntohl(number.s_addr) >> 24) == IN_LOOPBACKNET);
}

std::string HttpAnswer::header(const std::string& name) const {
  const auto found = headers.find(name);
  return found == headers.end() ? "" : found->second;
}

HttpClient::HttpClient(HttpPlace place) : place_(std::move(place)) {}

HttpClient::~HttpClient() = default;

HttpAnswer HttpClient::send(const HttpRequest& request, Milliseconds limit) {
  HttpAnswer answer;
  if (limit.count() <= 0) {
    answer.arrival = HttpAnswer::Arrival::late;
    answer.cause = std::make_error_code(std::errc::timed_out);
    return answer;
  }
  answer.cause = std::make_error_code(std::errc::file_too_large);
  if (request.body.size() > largestHttpBody) return answer;
  answer.cause = Reason::unreachable;
  if (handle_ == nullptr) handle_ = std::make_unique<Handle>();
  if (handle_->curl == nullptr) return answer;
  const BrokenPipesIgnored ignored;
  const HeaderList headers(handle_->library, request.headers);
  handle_->prepare(place_);
  handle_->ask(request, headers);
  handle_->takeInto(answer);
  handle_->set(CURLOPT_TIMEOUT_MS, static_cast<long>(limit.count()));
  const CURLcode code = handle_->library.perform(handle_->curl);
  answer.cause = causeOf(code);
  if (code == CURLE_OPERATION_TIMEDOUT) answer.arrival = HttpAnswer::Arrival::late;
  if (code != CURLE_OK) return answer;
  long status = 0;
  handle_->library.getinfo(handle_->curl, CURLINFO_RESPONSE_CODE, &status);
  answer.status = static_cast<int>(status);
  answer.arrival = HttpAnswer::Arrival::whole;
  constexpr int unauthorized = 401;
  if (answer.status == unauthorized && handle_->keptBack) answer.cause = Reason::plainPassword;
  return answer;
}

}  // namespace tarvo
