// The fixed order of the work, whatever the order of the options: edits, removals, display, save, reads.

#include "document_rows.h"
#include "messages.h"

namespace kovalt::test {
namespace {

std::vector<ToolCall> order() {
  return {
      added("removal_runs_after_later_additions", "-rm a -as a 1 -rm b -as b 2 -as c 3", R"({"c":"3"})"),
      changed("removal_runs_after_a_later_merge", R"({"a":1,"b":2})", "-rm b -af f.json", R"({"a":1})"),
      added("removals_run_in_their_order", "-an a 1 -an b 2 -an c 3 -an d 4 -rm a -rm b", R"({"d":4,"c":3})"),
      ToolCall("save_follows_the_removals")
          .given("f.json", R"({"a":1,"b":2})")
          .call("-rm b -f f.json -an a 3")
          .leaves("f.json", R"({
  "a": 3
})"),
      ToolCall("display_follows_the_removals")
          .given("f.json", R"({"a":1,"b":2})")
          .call("-fd f.json -rm b")
          .prints(R"({
    "a": 1
}
)")
          .leaves("f.json", R"({
  "a": 1
})"),
      ToolCall("reads_follow_everything")
          .call("-r k -as k v -as l w -rm l -r l")
          .prints(R"({
    "k": "v"
}
)")
          .reports(readError("l")),

      // A typical call.
      ToolCall("edit_is_saved_and_read_back")
          .given("conf.json", R"({"network":{"host":"h"}})")
          .call("--file conf.json --addString network.webSocketPort 9000 --read network.webSocketPort")
          .printsLine("9000")
          .leaves("conf.json", R"({
  "network": {
    "host": "h",
    "webSocketPort": "9000"
  }
})"),
      ToolCall("edit_creates_the_file_and_its_section")
          .call("--file conf.json --addString network.webSocketPort 9000 --read network.webSocketPort")
          .printsLine("9000")
          .leaves("conf.json", R"({
  "network": {
    "webSocketPort": "9000"
  }
})"),
  };
}

/// Both streams in the order in which they are written.
std::vector<ToolCall> streams() {
  return {
      ToolCall("messages_of_load_merge_and_edit_then_display_then_read_error")
          .withMergedStreams()
          .given("f.json", "{")
          .call("-r b -fd f.json -ab k maybe -af missing.json")
          .prints(cannotParse("f.json") + rejected("maybe") + cannotOpen("missing.json") + R"({
    "k": null
}
)" + readError("b"))
          .leaves("f.json", R"({
  "k": null
})"),
      ToolCall("display_then_failed_save_then_read")
          .withMergedStreams()
          .call("-fd no/such/f.json -an '' 5 -r ''")
          .prints("5\n" + cannotWrite("no/such/f.json") + "5\n")
          .exits(1),
      ToolCall("read_errors_then_gathered_reads")
          .withMergedStreams()
          .call("-r x -as k v -r k -r y")
          .prints(readError("x") + readError("y") + R"({
    "k": "v"
}
)"),
      ToolCall("errors_of_fields_then_concatenation")
          .withMergedStreams()
          .given("f.json", R"([{"a":1},{"b":2}])")
          .call("-f f.json -roac '' a")
          .prints(readError("a") + " 1\n"),
      ToolCall("display_then_message_of_a_failed_selection")
          .withMergedStreams()
          .given("f.json", "[]")
          .call("-fd f.json -r id=1")
          .prints("[]\n" + notFound("id=1")),
  };
}

const Table kRunOrder("RunOrder", order);
const Table kOrderOfStreams("OrderOfStreams", streams);

}  // namespace
}  // namespace kovalt::test
