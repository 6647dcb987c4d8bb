// SPDX-License-Identifier: MIT
// Test helper of the GUI action tests: an action that writes every call of Undo, Redo, Terminate, Destroy
// and its own deletion into a shared log, so that tests can check which calls came in which order.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ncappkit/gui/KCC_GUI_Action.h"
#include "ncappkit/gui/KCC_GUI_ActionVisitor.h"

namespace guiactiontest {

// The calls in the order they happened, each as "<Call> <name>", for example "Undo B" or "delete A".
using ActionLog = std::vector<std::string>;

class RecordingAction : public KCC_GUI_Action {
 public:
  RecordingAction(ActionLog& log, std::string name) : m_log(&log), m_name(std::move(name)) {}
  RecordingAction(const RecordingAction&) = default;
  RecordingAction& operator=(const RecordingAction&) = default;
  ~RecordingAction() override { m_log->push_back("delete " + m_name); }

  void Undo() override { m_log->push_back("Undo " + m_name); }
  void Redo() override { m_log->push_back("Redo " + m_name); }
  void Terminate() override { m_log->push_back("Terminate " + m_name); }
  void Destroy() override { m_log->push_back("Destroy " + m_name); }
  KCString ToString() override { return KCString(m_name); }

 private:
  ActionLog* m_log;
  std::string m_name;
};

// Collects the ToString text of every action visited; answers false at the action named `stopAt`.
class NameCollector : public KCC_GUI_ActionVisitor {
 public:
  explicit NameCollector(std::string stopAt = std::string()) : m_stopAt(std::move(stopAt)) {}

  bool Visit(KCC_GUI_Action& action) override {
    const std::string name = action.ToString().str();
    names.push_back(name);
    return name != m_stopAt;
  }

  std::vector<std::string> names;

 private:
  std::string m_stopAt;
};

// The ToString texts of a list's entries front to back; "null" for an empty entry.
template <typename List>
std::vector<std::string> NamesOf(const List& list) {
  std::vector<std::string> names;
  for (KCC_GUI_Action* action : list)
    names.push_back(action == nullptr ? std::string("null") : action->ToString().str());
  return names;
}

}  // namespace guiactiontest
