// Calls on copies of the example files.

#include "example_file.h"
#include "messages.h"
#include "tool_call.h"

namespace kovalt::test {
namespace {

/// A call on a copy of the example file `name`.
ToolCall example(const std::string& row, const std::string& name, const std::string& options) {
  return ToolCall(row).given(name, exampleFile(name)).call("-f " + name + " " + options);
}

/// The example file `name` as the program saves it: without its final end of line.
std::string saved(const std::string& name) {
  std::string content = exampleFile(name);
  content.pop_back();
  return content;
}

/// `text` with the first `before` replaced by `after`.
std::string replaced(std::string text, const std::string& before, const std::string& after) {
  return text.replace(text.find(before), before.size(), after);
}

constexpr auto kServiceAtNorth = R"({
  "name": "gateway",
  "version": "2.4.1",
  "instanceId": 9007199254740993,
  "production": true,
  "network": {
    "host": "10.20.4.7",
    "webSocketPort": 9443,
    "httpPort": 8080,
    "tls": {
      "enabled": true,
      "certificate": "certs/gateway.pem",
      "protocols": [
        "TLSv1.2",
        "TLSv1.3"
      ]
    },
    "proxy": {
      "host": "proxy.north.internal",
      "port": 3128
    }
  },
  "logging": {
    "level": "debug",
    "console": false,
    "file": "logs/gateway.log",
    "maxSizeBytes": 10737418240,
    "sampling": 0.25,
    "retentionDays": 14
  },
  "users": [
    {
      "name": "admin",
      "roles": [
        "read",
        "write"
      ]
    },
    {
      "name": "monitor",
      "roles": [
        "read"
      ]
    }
  ],
  "allowedOrigins": [
    "https://console.internal",
    "https://status.internal",
    "https://north.internal"
  ],
  "retryDelays": [
    1,
    5,
    30
  ],
  "site": {
    "name": "north",
    "rack": 7,
    "contacts": [
      "operations@north.internal"
    ]
  }
})";

std::vector<ToolCall> examplesRows() {
  return {
      example("port_of_the_service", "service.json", "-r network.webSocketPort").printsLine("8765"),
      example("numbers_of_the_service", "service.json", "-r instanceId -r logging.sampling -r production").prints(R"({
    "instanceId": "9007199254740993",
    "logging.sampling": "0.25",
    "production": "true"
}
)"),
      example("protocols_of_the_service", "service.json", "-ra network.tls.protocols").printsLine("TLSv1.2 TLSv1.3"),
      example("roles_of_one_user", "service.json", "-racq users.name=admin.roles").printsLine("read,write"),
      example("missing_section_of_the_service", "service.json", "-r network.proxy.port")
          .reports(readError("network.proxy.port")),
      example("service_merged_with_a_site", "service.json", "--addFile site-overrides.json")
          .given("site-overrides.json", exampleFile("site-overrides.json"))
          .leaves("service.json", kServiceAtNorth),
      example("links_of_the_graph", "hypergraph.json", "-roac links id hostname port")
          .printsLine("0 10.20.0.11 2099 1 10.20.0.12 3002 10 dogwood.internal 2099 2 cedar.internal 2099"),
      example("links_of_the_graph_with_separators", "hypergraph.json", "-roacs links id hostname port /:")
          .printsLine("0/10.20.0.11:2099 1/10.20.0.12:3002 10/dogwood.internal:2099 2/cedar.internal:2099"),
      example("zones_of_the_graph", "hypergraph.json", "-roac links zone port")
          .printsLine("north 2099(2) south 3002 west 2099"),
      example("peers_of_the_graph", "hypergraph.json", "-roacs links peer.name peer.latencyMs =")
          .printsLine("= alder=2.5(2) birch=11.0")
          .reports(readError("peer.name") + readError("peer.latencyMs")),
      example("limit_of_a_pool", "provisioning.json",
              "-r processProvisioning.pools.names=Dastrel.maxNumberOfNodesForThisHypervisor")
          .printsLine("12"),
      example("missing_pool", "provisioning.json", "-r processProvisioning.pools.names=Nowhere.reserved")
          .reports(notFound("names=Nowhere")),
      example("limit_of_a_pool_is_replaced", "provisioning.json",
              "-an processProvisioning.pools.names=Dastrel.maxNumberOfNodesForThisHypervisor 16")
          .leaves("provisioning.json", replaced(saved("provisioning.json"), ": 12", ": 16")),
      example("service_is_saved_in_its_layout", "service.json", "-rm network.proxy")
          .leaves("service.json", saved("service.json")),
      example("site_is_saved_in_its_layout", "site-overrides.json", "-rm site.gone")
          .leaves("site-overrides.json", saved("site-overrides.json")),
      example("graph_is_saved_in_its_layout", "hypergraph.json", "-rm links.gone")
          .leaves("hypergraph.json", saved("hypergraph.json")),
      example("pools_are_saved_in_their_layout", "provisioning.json", "-rm processProvisioning.gone")
          .leaves("provisioning.json", saved("provisioning.json")),
  };
}

const Table kExamples("Examples", examplesRows);

}  // namespace
}  // namespace kovalt::test
