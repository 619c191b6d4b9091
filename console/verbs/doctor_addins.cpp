// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/doctor_addins.h"

#include "app/product.h"
#include "console/verbs/addin_session.h"
#include "install/addin_diagnosis.h"
#include "platform/services/failure_text.h"
#include "platform/services/file_service.h"

namespace tarvo {

namespace {

class Examination {
 public:
  explicit Examination(Product& product) : product_(product) {}

  std::vector<Finding> all() {
    AddinSession addins(product_);
    if (!addins.read()) {
      findings_.push_back({(product_.bundle().folder() / "DefaultAddin.plist").text(), "applications that take add-ins",
                           "problem", "the manager cannot start without a list of them"});
      return std::move(findings_);
    }
    for (const AddinLists::SharedEntry& entry : addins.lists().fOfficeArray()) {
      const bool isRemembered = entry->find(addin_keys::installStatus) != nullptr;
      examine(diagnoseAddin(*entry, product_.files(), product_.locations(), product_.bundle()), isRemembered);
    }
    for (const AddinEntry& entry : addins.lists().forgotten()) {
      add(placesOf(entry, product_.locations(), product_.files()).application, addinText(entry, addin_keys::appName),
          "problem",
          "is not listed: it was not there at the end of an earlier run; without the setting Office it comes back");
    }
    return std::move(findings_);
  }

 private:
  void add(const DiskPath& path, const std::string& what, const char* state, std::string detail) {
    findings_.push_back({product_.locations().shown(path), what, state, std::move(detail)});
  }

  void examine(const AddinDiagnosis& addin, bool isRemembered) {
    const Result<FileService::Kind> kind = product_.files().kind(addin.places.application);
    const bool isAbsent = kind == FileService::Kind::absent;
    add(addin.places.application, addin.name,
        !kind      ? "problem"
        : isAbsent ? "missing"
                   : "ok",
        !kind      ? failureCauseText(kind.error(), product_.texts())
        : isAbsent ? "is not listed"
                   : "");
    if (isAbsent) return;
    folder(addin);
    item(addin, isRemembered);
  }

  void folder(const AddinDiagnosis& addin) {
    const bool exists = !product_.files().isAbsent(addin.places.folder);
    // What is installed is in its own way; that is no fault.
    const bool isInstalled = addin.isThere && !addin.isPartial;
    const bool fails = addin.obstacle && !isInstalled;
    const char* whenMissing = addin.kind == AddinKind::mail ? "is not listed without it" : "";
    add(addin.places.folder, "install folder of " + addin.name,
        !exists ? "missing"
        : fails ? "problem"
                : "ok",
        fails    ? "an install would fail: " + failureText(*addin.obstacle, product_.texts())
        : exists ? ""
                 : whenMissing);
  }

  void item(const AddinDiagnosis& addin, bool isRemembered) {
    std::string detail = addin.isThere ? "installed" : "not installed";
    if (addin.isPartial) detail = "installed in part, lacks " + lacking(addin);
    const bool differs = isRemembered && addin.differs();
    if (differs) {
      detail += addin.isMarked ? "; the box was left on and goes off with the next start"
                               : "; the box was left off and goes on with the next start";
    }
    if (addin.removalObstacle) {
      detail += "; a removal would fail: " + failureText(*addin.removalObstacle, product_.texts());
    }
    const bool isProblem = addin.isPartial || differs || addin.removalObstacle;
    add(addin.places.item, (addin.kind == AddinKind::mail ? "scripts of " : "macro of ") + addin.name,
        isProblem       ? "problem"
        : addin.isThere ? "ok"
                        : "missing",
        detail);
    for (const Failure& fault : addin.faults) tell(fault, addin);
  }

  // The finding of the whole stands already.
  void tell(const Failure& fault, const AddinDiagnosis& addin) {
    const DiskPath path(fault.path);
    if (isAbsence(fault) && path.folder() == addin.places.item) return;  // is among what it lacks
    const MessageParts parts = failureParts(fault, product_.texts());
    const std::string differs = parts.what + "; " + parts.cause;
    if (path == addin.places.item) {
      findings_.back().state = "problem";
      findings_.back().detail += "; " + differs;
    } else {
      add(path, "script of " + addin.name, "problem", differs);
    }
    findings_.back().cure = parts.cure;
  }

  static std::string lacking(const AddinDiagnosis& addin) {
    std::string names;
    for (const std::string& path : addin.missing) {
      if (path.starts_with(addin.places.item.text() + "/"))
        names += (names.empty() ? "" : ", ") + path.substr(addin.places.item.text().size() + 1);
    }
    return names;
  }

  Product& product_;
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> examineAddins(Product& product) { return Examination(product).all(); }

}  // namespace tarvo
