// The forms that are one JSON document: the tool's own, and SARIF 2.1.0.
#include <ostream>

#include <nlohmann/json.hpp>

#include "tools/qmn/check/report.h"

namespace {

using Json = nlohmann::ordered_json;

constexpr char kSchema[] =
    "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json";

Json JsonFinding(const ReportedFinding& finding, Language language) {
  const RuleInfo& info = InfoOf(finding.rule);
  return {{"line", finding.begin.line},
          {"column", finding.begin.column},
          {"endLine", finding.end.line},
          {"endColumn", finding.end.column},
          {"severity", WordOf(info.severity)},
          {"code", info.code},
          {"rule", info.name},
          {"text", finding.text.In(language)},
          {"source", finding.snippet.line}};
}

bool IsPlainInUri(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
         c == '.' || c == '_' || c == '~' || c == '/';
}

// A path as a URI reference: invalid characters are escaped, an absolute path becomes a file URI.
std::string UriOf(const std::string& file) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  const bool isDrive = file.size() > 2 && file[1] == ':' && (file[2] == '\\' || file[2] == '/');
  std::string uri = isDrive                    ? "file:///" + file.substr(0, 2)
                    : file.substr(0, 1) == "/" ? "file://"
                                               : "";
  for (size_t i = isDrive ? 2 : 0; i < file.size(); ++i) {
    const char c = isDrive && file[i] == '\\' ? '/' : file[i];
    const auto byte = static_cast<unsigned char>(c);
    if (IsPlainInUri(c))
      uri += c;
    else
      uri += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
  }
  return uri;
}

Json SarifRule(const RuleInfo& info, Language language) {
  return {{"id", info.code},
          {"name", info.name},
          {"shortDescription", {{"text", SummaryOf(info).In(language)}}},
          {"defaultConfiguration", {{"level", WordOf(info.severity)}}}};
}

Json SarifResult(const FileReport& report, const ReportedFinding& finding, Language language) {
  const RuleInfo& info = InfoOf(finding.rule);
  const Json region{{"startLine", finding.begin.line},
                    {"startColumn", finding.begin.column},
                    {"endLine", finding.end.line},
                    {"endColumn", finding.end.column}};
  const Json location{{"physicalLocation",
                       {{"artifactLocation", {{"uri", UriOf(report.file)}}}, {"region", region}}}};
  return {{"ruleId", info.code},
          {"ruleIndex", static_cast<int>(finding.rule)},
          {"level", WordOf(info.severity)},
          {"message", {{"text", finding.text.In(language)}}},
          {"locations", Json::array({location})}};
}

Json Notification(const char* level, const FileReport& report, const std::string& text) {
  const Json location{{"physicalLocation", {{"artifactLocation", {{"uri", UriOf(report.file)}}}}}};
  return {{"level", level}, {"message", {{"text", text}}}, {"locations", Json::array({location})}};
}

Json Invocation(const std::vector<FileReport>& reports, Language language) {
  bool isWhole = true;
  Json notifications = Json::array();
  for (const FileReport& report : reports) {
    if (!report.isRead)
      notifications.push_back(Notification("error", report, report.trouble.In(language)));
    if (report.omitted)
      notifications.push_back(Notification("note", report, OmittedText(report).In(language)));
    isWhole = isWhole && report.isRead;
  }
  return {{"executionSuccessful", isWhole}, {"toolExecutionNotifications", notifications}};
}

void Put(const Json& document, std::ostream& out) {
  out << document.dump(2, ' ', false, Json::error_handler_t::replace) << "\n";
}

}  // namespace

void ReportAsJson(const std::vector<FileReport>& reports, std::ostream& out, Language language) {
  Json files = Json::array();
  for (const FileReport& report : reports) {
    Json findings = Json::array();
    for (const ReportedFinding& finding : report.findings)
      findings.push_back(JsonFinding(finding, language));
    files.push_back({{"file", report.file},
                     {"read", report.isRead},
                     {"errors", report.errors},
                     {"warnings", report.warnings},
                     {"omitted", report.omitted},
                     {"findings", findings}});
  }
  Put({{"version", 1}, {"files", files}}, out);
}

void ReportAsSarif(const std::vector<FileReport>& reports, std::ostream& out, Language language) {
  Json rules = Json::array();
  for (const RuleInfo& info : AllRules()) rules.push_back(SarifRule(info, language));
  Json results = Json::array();
  for (const FileReport& report : reports)
    for (const ReportedFinding& finding : report.findings)
      results.push_back(SarifResult(report, finding, language));
  const Json driver{{"name", "qmn"}, {"version", kToolVersion}, {"rules", rules}};
  const Json run{{"tool", {{"driver", driver}}},
                 {"invocations", Json::array({Invocation(reports, language)})},
                 {"columnKind", "unicodeCodePoints"},
                 {"results", results}};
  Put({{"$schema", kSchema}, {"version", "2.1.0"}, {"runs", Json::array({run})}}, out);
}
