// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "platform/engine/engine_http.h"
#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "tests/bench/timing.h"

// What an edit adds for a style service, against the least that would move the same bytes: register_bench ADDRESS
// STYLEFILE COUNT. Prints the medians in milliseconds and the bytes of a payload: "REGISTRATION FLOOR BYTES".
namespace {

using namespace tarvo;

Array stylesIn(const char* path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  auto list = readPropertyList(bytes);
  if (!list || !list->dictionary() || !list->dictionary()->array("Style")) throw std::runtime_error("no styles");
  return *list->dictionary()->array("Style");
}

void mustBe(bool held, const char* what) {
  if (!held) throw std::runtime_error(what);
}

class RegisterBench {
 public:
  RegisterBench(const char* address, const char* styleFile)
      : styles_(stylesIn(styleFile)), engine_({address, {}, {}}, files_, {}), client_({address, {}, {}}) {
    for (const PropertyList& style : styles_) appendValue(encoded_.emplace_back(), style, 2);
    bytes_ = StylePayload({styles_, encoded_}).bytes(1);
  }

  // One registration as the store makes it after an edit, until it has arrived; the same bytes there and back.
  void alternate() {
    styles_.front().dictionary()->set("Edit", ++edits_);
    encoded_.front().clear();
    appendValue(encoded_.front(), styles_.front(), 2);
    registrations_.push_back(milliseconds([&] {
      std::string stamp;
      mustBe(engine_.checkConnectionWithCurl(), "the service was not reached");
      engine_.sendRegistStyle({styles_, encoded_}, stamp);
      engine_.waitUntilSent(std::chrono::seconds(10));
      mustBe(engine_.didRegister().has_value(), "the service did not store");
    }));
    floors_.push_back(milliseconds([&] {
      mustBe(client_.send({"PUT", {}, bytes_}, HttpClient::Milliseconds(2000)).isWhole(), "no answer");
      mustBe(client_.send({"GET", {}, {}}, HttpClient::Milliseconds(2000)).body == bytes_, "other bytes");
    }));
  }

  void print() const { std::printf("%.4f %.4f %zu\n", median(registrations_), median(floors_), bytes_.size()); }

 private:
  const Locations locations_{"/", "/"};
  PosixFiles files_{locations_};
  Array styles_;
  int edits_ = 0;
  std::vector<std::string> encoded_;
  std::string bytes_;
  EngineHttp engine_;
  HttpClient client_;
  Times registrations_, floors_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  try {
    RegisterBench bench(argv[1], argv[2]);
    for (int i = std::atoi(argv[3]); i > 0; --i) bench.alternate();
    bench.print();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "register_bench: %s\n", error.what());
    return 1;
  }
}
