#include "diary/page_style.h"

#include <string_view>

#include "diary/palette.h"

namespace velnor {
namespace {

constexpr std::string_view kRules = R"(
*{box-sizing:border-box}
html{-webkit-text-size-adjust:100%;text-size-adjust:100%}
body{margin:0;background:var(--page);color:var(--ink);overflow-wrap:break-word;
 font:16px/1.5 system-ui,-apple-system,"Segoe UI",Roboto,"Liberation Sans",Arial,sans-serif;
 font-variant-numeric:tabular-nums}
main,header,footer{max-width:1000px;margin:0 auto;padding:0 20px}
header{padding-top:44px;padding-bottom:8px}
h1,h3,.deeds,.rank span{overflow-wrap:anywhere}
h1{font-size:34px;line-height:1.15;font-weight:650;letter-spacing:-.02em;margin:0 0 6px}
h2{font-size:21px;line-height:1.3;font-weight:650;letter-spacing:-.01em;margin:52px 0 16px}
h3{font-size:16px;line-height:1.35;font-weight:650;margin:0}
p{margin:0}
a{color:var(--link);text-underline-offset:2px}
.soft{color:var(--soft)}
.eyebrow{color:var(--soft);font-size:13px;letter-spacing:.08em;text-transform:uppercase;margin-bottom:6px}
.files{display:flex;flex-wrap:wrap;gap:4px 22px;margin-top:14px;font-size:14px}
.card,figure{background:var(--card);border:1px solid var(--rule);border-radius:14px;padding:22px 24px;margin:0}
.card+.card,figure+figure{margin-top:16px}
.note{color:var(--soft);font-size:14px;margin-top:14px}

.today{display:grid;grid-template-columns:minmax(0,5fr) minmax(0,6fr);gap:32px}
.big{font-size:44px;line-height:1.1;font-weight:650;letter-spacing:-.02em}
.big small{font-size:17px;font-weight:400;letter-spacing:0;color:var(--soft)}
.meters{display:grid;gap:14px;margin-top:20px}
.meter .names{display:flex;justify-content:space-between;gap:12px;font-size:14px;margin-bottom:5px}
.rail{position:relative;height:12px;border-radius:6px;background:var(--track);overflow:hidden}
.rail .need{position:absolute;top:0;bottom:0;background:var(--band);border:solid var(--green);border-width:0 2px}
.rail .eaten{position:absolute;left:0;top:3px;bottom:3px;background:var(--blue);border-radius:0 3px 3px 0}

.tiles{display:grid;grid-template-columns:repeat(4,minmax(0,1fr));gap:16px;margin-top:16px}
.tile{background:var(--card);border:1px solid var(--rule);border-radius:14px;padding:18px 20px}
.tile .what{font-size:14px;color:var(--soft)}
.tile .value{font-size:27px;line-height:1.3;font-weight:650;letter-spacing:-.01em}
.tile .value small{font-size:15px;font-weight:400;letter-spacing:0}
.tile .more{font-size:13px;color:var(--soft)}

.ranges{display:flex;flex-wrap:wrap;gap:4px;border:0;padding:0;margin:0 0 16px}
.ranges legend{position:absolute;width:1px;height:1px;overflow:hidden;clip-path:inset(50%)}
.ranges input{position:absolute;opacity:0;width:1px;height:1px}
.ranges label{padding:6px 16px;border-radius:999px;border:1px solid var(--axis);font-size:14px;cursor:pointer}
.ranges input:checked+label{background:var(--ink);border-color:var(--ink);color:var(--page)}
.ranges input:focus-visible+label{outline:3px solid var(--blue);outline-offset:2px}
.plots:has(#r30:checked) .panel:not(.p30),.plots:has(#r90:checked) .panel:not(.p90),
.plots:has(#r365:checked) .panel:not(.p365),.plots:has(#rall:checked) .panel:not(.pall){display:none}
figcaption{margin-bottom:14px}
figcaption p{font-size:15px;color:var(--soft);max-width:72ch;margin-top:2px}
.key{display:flex;flex-wrap:wrap;gap:2px 20px;list-style:none;margin:10px 0 0;padding:0;font-size:13.5px;color:var(--soft)}
.key li{display:flex;align-items:center;gap:7px}
.key i{width:14px;height:12px;border-radius:2px}
.key .line{height:3px;width:18px}
.key .dot{width:8px;height:8px;border-radius:4px}
.key .need{background:var(--band);border:solid var(--green);border-width:1.5px 0}
.blue{background:var(--blue)}.vermilion{background:var(--vermilion)}.purple{background:var(--purple)}
svg{display:block;width:100%;height:auto;font:13px system-ui,-apple-system,"Segoe UI",Roboto,"Liberation Sans",Arial,sans-serif;
 font-variant-numeric:tabular-nums}
.narrow{display:none}
svg path{fill:none;stroke-linecap:butt;stroke-linejoin:round}
.label,.unit,.nothing{fill:var(--soft)}
.number{fill:var(--ink);paint-order:stroke;stroke:var(--card);stroke-width:4px;stroke-linejoin:round;font-weight:600}
.narrow .number{font-size:10.5px}
.nothing{font-size:15px}
svg .grid{stroke:var(--rule)}
svg .axis{stroke:var(--axis)}
svg rect.band{fill:var(--band)}
svg .bound{stroke:var(--green);stroke-width:1.4;stroke-dasharray:5 4}
svg .bar{stroke:var(--blue)}
svg .protein{stroke:var(--blue)}
svg .fat{stroke:var(--vermilion)}
svg .carbohydrate{stroke:var(--purple)}
svg .casing{stroke:var(--card);stroke-width:6;stroke-linecap:round}
svg .smooth{stroke:var(--vermilion);stroke-width:2.8;stroke-linecap:round}
svg .thin.casing{stroke-width:3.6}
svg .thin.smooth{stroke-width:1.6}
svg .sum{stroke:var(--purple);stroke-width:2.8;stroke-linecap:round}
svg .points{stroke:var(--blue);stroke-width:6;stroke-linecap:round}
svg .points.small{stroke-width:3.6}
svg .beyond{fill:var(--blue)}

.facts{display:grid;grid-template-columns:repeat(4,minmax(0,1fr));gap:12px 24px;margin:18px 0 0}
.facts dt{font-size:13.5px;color:var(--soft)}
.facts dd{margin:0;font-weight:650}
.facts dd small{display:block;font-size:13.5px;font-weight:400;color:var(--soft)}
.pair{display:grid;grid-template-columns:repeat(2,minmax(0,1fr));gap:16px;margin-top:16px}
.pair .card+.card{margin-top:0}
.rank{list-style:none;margin:12px 0 0;padding:0;font-size:15px}
.rank li{display:grid;grid-template-columns:minmax(0,1fr) auto;gap:0 14px;padding:5px 0}
.rank .rail{grid-column:1/3;height:4px;border-radius:2px}
.rank .rail .eaten{top:0;bottom:0}

.month{margin-top:28px}
.month>p{color:var(--soft);font-size:14px;margin:2px 0 10px}
.days{background:var(--card);border:1px solid var(--rule);border-radius:14px;overflow:hidden}
details+details{border-top:1px solid var(--rule)}
summary{display:grid;grid-template-columns:92px 104px minmax(0,1fr) 120px 84px 14px;gap:0 14px;align-items:baseline;
 padding:9px 18px;cursor:pointer;list-style:none;font-size:15px}
summary::-webkit-details-marker{display:none}
summary:focus-visible{outline:3px solid var(--blue);outline-offset:-3px}
summary::after{content:"";width:7px;height:7px;border:solid var(--soft);border-width:0 2px 2px 0;transform:rotate(45deg);
 align-self:center;grid-column:6;grid-row:1}
details[open] summary::after{transform:rotate(225deg)}
summary .energy{font-weight:650;text-align:right}
summary .burned,summary .weight{text-align:right}
summary .soft{font-size:14px}
.foods{padding:0 18px 16px}
table{border-collapse:collapse;width:100%;font-size:14px}
th{font-weight:400;color:var(--soft);font-size:13px;text-align:right;padding:4px 0 4px 14px;white-space:nowrap;border-bottom:1px solid var(--rule)}
td{text-align:right;padding:5px 0 5px 14px;vertical-align:baseline;border-bottom:1px solid var(--rule);white-space:nowrap}
tr:last-child td{border-bottom:0}
th:first-child,td:first-child{padding-left:0;text-align:left}
td.name{white-space:normal;overflow-wrap:anywhere;min-width:7em}
.name{text-align:left;width:99%}
.months td:last-child{white-space:normal}
.time{color:var(--soft)}
.deeds{list-style:none;margin:10px 0 0;padding:0;font-size:14px;color:var(--soft)}
footer{color:var(--soft);font-size:13.5px;padding-top:44px;padding-bottom:56px}

@media (max-width:700px){
 main,header,footer{padding-left:14px;padding-right:14px}
 header{padding-top:28px}
 h1{font-size:28px}
 h2{margin-top:40px}
 .card,figure{padding:18px 16px}
 .today,.pair{grid-template-columns:minmax(0,1fr);gap:16px}
 .tiles,.facts{grid-template-columns:repeat(2,minmax(0,1fr));gap:12px}
 .tile{padding:14px 16px}
 .tile .value{font-size:23px}
 .wide{display:none}
 .narrow{display:inline}
 svg.narrow{display:block;max-width:460px;margin:0 auto}
 summary{grid-template-columns:minmax(0,1fr) auto 14px;padding:10px 16px}
 summary::after{grid-column:3}
 summary .grams,summary .burned,summary .weight{text-align:left;grid-row:2;font-size:13.5px}
 summary .weight,summary .burned{text-align:right}
 summary .burned:not(:empty)~.weight{grid-row:3}
 summary .weight,summary .burned{grid-column:2}
 .foods{padding:0 16px 14px}
 .grams-column{display:none}
 th,td{padding-left:10px}
}

@page{size:A4;margin:14mm}
@media print{
 body{background:none;font-size:12.5px}
 main,header,footer{max-width:none;padding-left:0;padding-right:0}
 header{padding-top:0}
 .today{grid-template-columns:minmax(0,1fr);gap:16px}
 .meters{grid-template-columns:repeat(2,minmax(0,1fr));gap:12px 28px}
 h2{margin-top:26px;break-after:avoid}
 h3{break-after:avoid}
 .files,.ranges,summary::after{display:none}
 .card,figure,.tile,.days{border-radius:6px}
 figure,.card,.tile,details,.month>p,tr{break-inside:avoid}
 .wide{display:inline}
 svg.wide{display:block}
 .narrow,svg.narrow{display:none}
 .month>p{break-after:avoid}
 .big{font-size:32px}
 .tile{padding:12px 14px}
 .tile .value{font-size:20px}
 .card,figure{padding:14px 16px}
 summary{grid-template-columns:82px 84px minmax(0,1fr) 96px 70px;padding:4px 14px;font-size:12.5px}
 summary .soft{font-size:12px}
 .rail,.key i{-webkit-print-color-adjust:exact;print-color-adjust:exact}
 footer{padding-top:20px;padding-bottom:0}
}
)";

std::string Properties(std::string_view PageColour::*scheme) {
  std::string properties;
  for (const PageColour& colour : kPageColours) {
    properties += "--" + std::string(colour.name) + ':' + std::string(colour.*scheme) + ';';
  }
  return properties;
}

}  // namespace

std::string PageStyle() {
  return ":root{color-scheme:light;" + Properties(&PageColour::light) +
         "}\n@media screen and (prefers-color-scheme:dark){:root{color-scheme:dark;" +
         Properties(&PageColour::dark) + "}}" + std::string(kRules);
}

}  // namespace velnor
