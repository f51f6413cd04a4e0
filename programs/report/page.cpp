#include "report/page.hpp"

#include "report/text.hpp"

namespace tervak::report {
namespace {

/// The frame that the script fills.
constexpr std::string_view body = R"html(<header><h1 id="title"></h1><div id="state"></div></header>
<noscript><p>This page draws by its script, which the browser does not run here. <code>tervak-report --svg</code> makes
pictures of the layers that need none.</p></noscript>
<nav id="bar" aria-label="Choice of layer"></nav>
<main id="main"><div id="work"><section id="column" aria-label="Soil column"></section>
<section id="curves" aria-label="Curves of the layer"></section></div>
<section id="depths" aria-label="Values over depth"></section>
<section id="tables" aria-label="Tables"></section></main>
<p id="live" role="status" aria-live="polite"></p>
)html";

}  // namespace

std::string page(const interface_file& file, const page_facts& facts) {
  const std::string title = file.profiles.empty() || file.profiles.front().label.empty()
                                ? facts.file_name
                                : file.profiles.front().label;
  return join({"<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">",
               "<meta name=\"viewport\" content=\"width=device-width\"><title>", escape_html(title),
               "</title><style>", plot_style, page_style, "</style></head>\n<body>", body,
               "<script type=\"application/json\" id=\"rif-data\">", page_data(file, facts),
               "</script>\n<script>", page_script, "</script></body></html>\n"});
}

}  // namespace tervak::report
