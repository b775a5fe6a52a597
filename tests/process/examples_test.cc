// Calls on copies of the example files.

#include "example_file.h"
#include "tool_call.h"

namespace kovalt::test {
namespace {

/// The bytes that a save of the unchanged example leaves: files are saved without a line end at their end.
std::string savedExample(const std::string& name) {
  std::string content = exampleFile(name);
  content.pop_back();
  return content;
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

constexpr auto kLargerPool = R"({
  "processProvisioning": {
    "enabled": true,
    "strategy": "spread",
    "pools": [
      {
        "names": [
          "Orvane",
          "Dastrel"
        ],
        "maxNumberOfNodesForThisHypervisor": 16,
        "reserved": false,
        "hypervisors": [
          "hv-01.internal",
          "hv-02.internal"
        ]
      },
      {
        "names": [
          "Velmoor"
        ],
        "maxNumberOfNodesForThisHypervisor": 4,
        "reserved": true,
        "hypervisors": [
          "hv-07.internal"
        ]
      }
    ]
  }
})";

std::vector<ToolCall> rows() {
  return {
      ToolCall("the_port_of_the_service")
          .given("service.json", exampleFile("service.json"))
          .call("--file service.json --read network.webSocketPort")
          .prints("8765\n"),
      ToolCall("the_large_number_of_the_service_is_exact")
          .given("service.json", exampleFile("service.json"))
          .call("-f service.json -r instanceId -r logging.sampling -r production")
          .prints("{\n    \"instanceId\": \"9007199254740993\",\n    \"logging.sampling\": \"0.25\",\n"
                  "    \"production\": \"true\"\n}\n"),
      ToolCall("the_protocols_of_the_service_on_one_line")
          .given("service.json", exampleFile("service.json"))
          .call("-f service.json --readArray network.tls.protocols")
          .prints("TLSv1.2 TLSv1.3\n"),
      ToolCall("the_roles_of_one_user")
          .given("service.json", exampleFile("service.json"))
          .call("-f service.json -racq users.name=admin.roles")
          .prints("read,write\n"),
      ToolCall("a_missing_section_of_the_service")
          .given("service.json", exampleFile("service.json"))
          .call("-f service.json -r network.proxy.port")
          .reports("--read error : Path \"network.proxy.port\" does not exist\n"),
      ToolCall("a_site_merged_over_the_service")
          .given("service.json", exampleFile("service.json"))
          .given("site-overrides.json", exampleFile("site-overrides.json"))
          .call("--file service.json --addFile site-overrides.json")
          .leaves("service.json", kServiceAtNorth),
      ToolCall("a_site_merged_over_the_service_without_saving")
          .given("service.json", exampleFile("service.json"))
          .given("site-overrides.json", exampleFile("site-overrides.json"))
          .call("-af service.json -af site-overrides.json -ras allowedOrigins")
          .prints("\"https://console.internal\" \"https://status.internal\" \"https://north.internal\"\n"),
      ToolCall("the_links_of_the_graph_as_sorted_records")
          .given("hypergraph.json", exampleFile("hypergraph.json"))
          .call("-f hypergraph.json -roac links id hostname port")
          .prints("0 10.20.0.11 2099 1 10.20.0.12 3002 10 dogwood.internal 2099 2 cedar.internal 2099\n"),
      ToolCall("the_links_of_the_graph_with_separators")
          .given("hypergraph.json", exampleFile("hypergraph.json"))
          .call("-f hypergraph.json -roacs links id hostname port /:")
          .prints("0/10.20.0.11:2099 1/10.20.0.12:3002 10/dogwood.internal:2099 2/cedar.internal:2099\n"),
      ToolCall("the_zones_of_the_graph_counted")
          .given("hypergraph.json", exampleFile("hypergraph.json"))
          .call("-f hypergraph.json -roac links zone port")
          .prints("north 2099(2) south 3002 west 2099\n"),
      ToolCall("the_peers_of_the_graph_with_one_missing")
          .given("hypergraph.json", exampleFile("hypergraph.json"))
          .call("-f hypergraph.json -roacs links peer.name peer.latencyMs =")
          .prints("= alder=2.5(2) birch=11.0\n")
          .reports("--read error : Path \"peer.name\" does not exist\n"
                   "--read error : Path \"peer.latencyMs\" does not exist\n"),
      ToolCall("the_limit_of_a_pool_found_by_one_of_its_names")
          .given("provisioning.json", exampleFile("provisioning.json"))
          .call("-f provisioning.json -r processProvisioning.pools.names=Dastrel.maxNumberOfNodesForThisHypervisor")
          .prints("12\n"),
      ToolCall("a_pool_that_does_not_exist")
          .given("provisioning.json", exampleFile("provisioning.json"))
          .call("-f provisioning.json -r processProvisioning.pools.names=Nowhere.reserved")
          .reports("Kovalt path not found with refKey=refValue \"names=Nowhere\"\n"),
      ToolCall("the_limit_of_a_pool_changed_in_place")
          .given("provisioning.json", exampleFile("provisioning.json"))
          .call("-f provisioning.json -an processProvisioning.pools.names=Dastrel.maxNumberOfNodesForThisHypervisor 16")
          .leaves("provisioning.json", kLargerPool),
      ToolCall("the_service_is_laid_out_as_it_is_saved")
          .given("service.json", exampleFile("service.json"))
          .call("-f service.json -rm network.proxy")
          .leaves("service.json", savedExample("service.json")),
      ToolCall("the_site_is_laid_out_as_it_is_saved")
          .given("site-overrides.json", exampleFile("site-overrides.json"))
          .call("-f site-overrides.json -rm site.gone")
          .leaves("site-overrides.json", savedExample("site-overrides.json")),
      ToolCall("the_graph_is_laid_out_as_it_is_saved")
          .given("hypergraph.json", exampleFile("hypergraph.json"))
          .call("-f hypergraph.json -rm links.gone")
          .leaves("hypergraph.json", savedExample("hypergraph.json")),
      ToolCall("the_pools_are_laid_out_as_they_are_saved")
          .given("provisioning.json", exampleFile("provisioning.json"))
          .call("-f provisioning.json -rm processProvisioning.gone")
          .leaves("provisioning.json", savedExample("provisioning.json")),
  };
}

const Table kExamples("Examples", rows);

}  // namespace
}  // namespace kovalt::test
