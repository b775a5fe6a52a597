// The inner pieces, each over growing input.

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "actions/edit/merge_value.h"
#include "actions/read/read_array_actions.h"
#include "actions/read/read_object_array_concat_action.h"
#include "json/document.h"
#include "json/path/key_path.h"
#include "json/path/resolve_key_path.h"
#include "json/write/write_value.h"

namespace kovalt {
namespace {

Value numberedObject(const std::string& prefix, std::int64_t size, Allocator& allocator) {
  Value object(rapidjson::kObjectType);
  for (std::int64_t i = 0; i < size; ++i) {
    object.AddMember(Value((prefix + std::to_string(i)).c_str(), allocator), Value(i), allocator);
  }
  return object;
}

void resolveSelection(benchmark::State& state) {
  Document document;
  document.SetArray();
  for (std::int64_t i = 0; i < state.range(0); ++i) {
    Value element(rapidjson::kObjectType);
    element.AddMember("id", Value(i), document.GetAllocator());
    document.PushBack(element, document.GetAllocator());
  }
  const KeyPath path("id=" + std::to_string(state.range(0) - 1) + ".id");
  for (auto _ : state) {
    Lookups lookups;
    benchmark::DoNotOptimize(resolveExisting(path, document, lookups));
  }
  state.SetComplexityN(state.range(0));
}

void mergeObjects(benchmark::State& state, const std::string& sourcePrefix) {
  for (auto _ : state) {
    state.PauseTiming();
    auto document = std::make_unique<Document>();
    Value target = numberedObject("a", state.range(0), document->GetAllocator());
    Value source = numberedObject(sourcePrefix, state.range(0), document->GetAllocator());
    state.ResumeTiming();
    EditedDocument edited(*document);
    mergeValue(target, source, edited);
    state.PauseTiming();
    document.reset();
    state.ResumeTiming();
  }
  state.SetComplexityN(state.range(0));
}

void mergeDistinctNames(benchmark::State& state) { mergeObjects(state, "b"); }
void mergeSameNames(benchmark::State& state) { mergeObjects(state, "a"); }

void countRecords(benchmark::State& state) {
  for (auto _ : state) {
    ConcatRecords records;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
      ++records["record " + std::to_string(i)];
    }
    benchmark::DoNotOptimize(joined(records));
  }
  state.SetComplexityN(state.range(0));
}

void flattenArrayText(benchmark::State& state) {
  std::string elements = "[";
  for (std::int64_t i = 0; i < state.range(0); ++i) {
    elements += "\"a, b\",";
  }
  elements.back() = ']';
  for (auto _ : state) {
    std::string text = elements;
    stripBrackets(text);
    commasToSpaces(text);
    removeQuotes(text);
    benchmark::DoNotOptimize(text);
  }
  state.SetComplexityN(state.range(0));
}

void writeCompactText(benchmark::State& state) {
  Document document;
  const Value object = numberedObject("name", state.range(0), document.GetAllocator());
  for (auto _ : state) {
    benchmark::DoNotOptimize(valueToText(object, false));
  }
  state.SetComplexityN(state.range(0));
}

/// Measures a function at sizes from 8 to a largest one, and fits how its time grows with them.
void measure(const char* name, void (*function)(benchmark::State&), int largest) {
  benchmark::RegisterBenchmark(name, function)->Range(8, largest)->Complexity();
}

}  // namespace
}  // namespace kovalt

int main(int argumentCount, char* arguments[]) {
  using namespace kovalt;
  benchmark::Initialize(&argumentCount, arguments);
  measure("resolveSelection", resolveSelection, 1 << 15);
  measure("mergeDistinctNames", mergeDistinctNames, 1 << 17);
  measure("mergeSameNames", mergeSameNames, 1 << 17);
  measure("countRecords", countRecords, 1 << 17);
  measure("flattenArrayText", flattenArrayText, 1 << 17);
  measure("writeCompactText", writeCompactText, 1 << 17);
  benchmark::RunSpecifiedBenchmarks();
}
