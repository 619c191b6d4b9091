// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/http_client.h"

#include <curl/curl.h>
#include <signal.h>

#include <fstream>
#include <optional>
#include <utility>

#include "platform/engine/http_address.h"
#include "platform/engine/shared_library.h"
#include "platform/services/result.h"

namespace tarvo {
namespace {

struct CurlLibrary {
  SharedLibrary library{"libcurl.so.4"};
  decltype(&curl_easy_init) init = library.function<decltype(curl_easy_init)>("curl_easy_init");
  decltype(&curl_easy_reset) reset = library.function<decltype(curl_easy_reset)>("curl_easy_reset");
  decltype(&curl_easy_setopt) setopt = library.function<decltype(curl_easy_setopt)>("curl_easy_setopt");
  decltype(&curl_easy_getinfo) getinfo = library.function<decltype(curl_easy_getinfo)>("curl_easy_getinfo");
  decltype(&curl_easy_cleanup) cleanup = library.function<decltype(curl_easy_cleanup)>("curl_easy_cleanup");
  decltype(&curl_multi_init) multiInit = library.function<decltype(curl_multi_init)>("curl_multi_init");
  decltype(&curl_multi_add_handle) add = library.function<decltype(curl_multi_add_handle)>("curl_multi_add_handle");
  decltype(&curl_multi_remove_handle) remove =
      library.function<decltype(curl_multi_remove_handle)>("curl_multi_remove_handle");
  decltype(&curl_multi_perform) perform = library.function<decltype(curl_multi_perform)>("curl_multi_perform");
  decltype(&curl_multi_poll) poll = library.function<decltype(curl_multi_poll)>("curl_multi_poll");
  decltype(&curl_multi_wakeup) wakeup = library.function<decltype(curl_multi_wakeup)>("curl_multi_wakeup");
  decltype(&curl_multi_info_read) infoRead = library.function<decltype(curl_multi_info_read)>("curl_multi_info_read");
  decltype(&curl_multi_cleanup) multiCleanup = library.function<decltype(curl_multi_cleanup)>("curl_multi_cleanup");
  decltype(&curl_slist_append) append = library.function<decltype(curl_slist_append)>("curl_slist_append");
  decltype(&curl_slist_free_all) freeAll = library.function<decltype(curl_slist_free_all)>("curl_slist_free_all");

  bool isWhole() const {
    return init && reset && setopt && getinfo && cleanup && append && freeAll && multiInit && add && remove &&
           perform && poll && wakeup && infoRead && multiCleanup;
  }
};

// The TLS library writes to connections that the other side has closed. For this thread only, whose fault it is.
class BrokenPipesIgnored {
 public:
  BrokenPipesIgnored() {
    sigemptyset(&pipe_);
    sigaddset(&pipe_, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &pipe_, &former_);
  }
  ~BrokenPipesIgnored() {
    const timespec atOnce{};
    while (sigismember(&former_, SIGPIPE) == 0 && sigtimedwait(&pipe_, nullptr, &atOnce) == SIGPIPE) {
    }
    pthread_sigmask(SIG_SETMASK, &former_, nullptr);
  }
  BrokenPipesIgnored(const BrokenPipesIgnored&) = delete;
  BrokenPipesIgnored& operator=(const BrokenPipesIgnored&) = delete;

 private:
  sigset_t pipe_{}, former_{};
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
    headers[lowerCaseASCII(line.substr(0, colon))] = withoutBlanks(line.substr(colon + 1));
  }
  return size;
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
  CURLM* multi = curl != nullptr ? library.multiInit() : nullptr;  // keeps the open connections, and can be woken
  bool keptBack = false;                                           // credentials that there are

  Handle() = default;
  ~Handle() {
    if (curl != nullptr) library.cleanup(curl);
    if (multi != nullptr) library.multiCleanup(multi);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  template <class Value>
  void set(CURLoption option, Value value) {
    library.setopt(curl, option, value);
  }
  void prepare(const HttpPlace& place, const std::string& address) {
    library.reset(curl);
    set(CURLOPT_URL, address.c_str());
    set(CURLOPT_PROTOCOLS_STR, "http,https");
    set(CURLOPT_NOSIGNAL, 1L);
    set(CURLOPT_QUICK_EXIT, 1L);  // a name service that hangs is not waited for either
    if (isLoopbackAddress(place.address)) set(CURLOPT_NOPROXY, "*");
    const bool hasCredentials = static_cast<bool>(std::ifstream(place.netrc.text()));
    const bool mayGoOut =
        place.allowsPlainPasswords || isEncryptedAddress(place.address) || isLoopbackAddress(place.address);
    keptBack = hasCredentials && !mayGoOut;
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
  // What became of the one request; nothing when it was called off.
  std::optional<CURLcode> result() const {
    int left = 0;
    const CURLMsg* message = library.infoRead(multi, &left);
    return message != nullptr ? std::optional(message->data.result) : std::nullopt;
  }
  std::optional<CURLcode> perform(const std::atomic<bool>& cancelled) {
    constexpr int longestSleep = 1000;  // milliseconds; the library wakes up before where it has something to do
    if (library.add(multi, curl) != CURLM_OK) return CURLE_FAILED_INIT;
    int running = 1;
    while (running != 0 && !cancelled) {
      if (library.perform(multi, &running) != CURLM_OK) break;
      if (running != 0) library.poll(multi, nullptr, 0, longestSleep, nullptr);
    }
    const std::optional<CURLcode> code = result();
    library.remove(multi, curl);
    return code;
  }
};

std::string HttpAnswer::header(const std::string& name) const {
  const auto found = headers.find(name);
  return found == headers.end() ? "" : found->second;
}

HttpClient::HttpClient(HttpPlace place) : place_(std::move(place)) {}

HttpClient::~HttpClient() = default;

HttpClient::Handle* HttpClient::handle() {
  const std::lock_guard making(making_);
  if (handle_ == nullptr) handle_ = std::make_unique<Handle>();
  return handle_->multi != nullptr ? handle_.get() : nullptr;
}

void HttpClient::cancel() {
  cancelled_ = true;
  const std::lock_guard making(making_);
  if (handle_ != nullptr && handle_->multi != nullptr) handle_->library.wakeup(handle_->multi);
}

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
  Handle* const handle = this->handle();
  if (handle == nullptr) return answer;
  const BrokenPipesIgnored ignored;
  const HeaderList headers(handle->library, request.headers);
  handle->prepare(place_, place_.address + std::string(request.behindAddress));
  handle->ask(request, headers);
  handle->takeInto(answer);
  handle->set(CURLOPT_TIMEOUT_MS, static_cast<long>(limit.count()));
  const std::optional<CURLcode> code = handle->perform(cancelled_);
  answer.cause = code ? causeOf(*code) : std::make_error_code(std::errc::operation_canceled);
  if (code == CURLE_OPERATION_TIMEDOUT) answer.arrival = HttpAnswer::Arrival::late;
  if (code != CURLE_OK) return answer;
  long status = 0;
  handle->library.getinfo(handle->curl, CURLINFO_RESPONSE_CODE, &status);
  answer.status = static_cast<int>(status);
  answer.arrival = HttpAnswer::Arrival::whole;
  constexpr int unauthorized = 401;
  if (answer.status == unauthorized && handle->keptBack) answer.cause = Reason::plainPassword;
  return answer;
}

}  // namespace tarvo
