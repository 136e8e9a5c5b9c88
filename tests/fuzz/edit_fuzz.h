// One iteration of the in-place editor's fuzzer and of the fixed run in the tests. It stops the
// process when the editor differs from the model of the text or an invariant is violated; the
// sanitizers detect the rest.
#pragma once

#include <map>
#include <string>

// What a run reached, so that a test can require it.
struct EditFuzzRun {
  std::map<std::string, int> operations;  // by the first word of the diary's entry
  std::map<std::string, int> checked;     // results compared with the model, by kind
  int records = 0;
  int nested = 0;   // records during an operation
  int unloads = 0;  // of the module during an operation

  void Add(const EditFuzzRun& other);
};

// The bytes are a stream of keys, mouse messages, menu commands, notifications and changes of the
// host, over an editor of its own with a few objects.
EditFuzzRun FuzzInPlaceEdit(const std::string& bytes);
