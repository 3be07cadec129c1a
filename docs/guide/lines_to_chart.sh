# Makes a chart of lines with a name, a tab and a number, as databases print them: lines_to_chart.sh <LINES >CHART
echo '<root xmlns="http://vexa-charts.org/2008/vx" width="640px" height="360px" fill="white" font-size="13px">
  <plot-area x="16px" y="16px" width="608px" height="328px">
    <category-axis data-type="text"><display-values placement="between-ticks"/></category-axis>
    <value-axis orientation="horizontal" stroke="none"/>
    <bar-chart caption-placement="outside-end"><serie>'
awk -F '\t' '
    function escaped(s) { gsub(/&/, "\\&amp;", s); gsub(/</, "\\&lt;", s); gsub(/"/, "\\&quot;", s); return s }
    { printf "<data-point category=\"%s\" value=\"%s\" caption=\"%s\"/>\n", escaped($1), escaped($2), escaped($2) }'
echo '</serie></bar-chart></plot-area></root>'
