# Fills a chart with a table: fill_chart.py TEMPLATE <TABLE.csv >CHART. The table has a header, then names and numbers.
import csv
import sys
import xml.etree.ElementTree as xml

NAMESPACE = "http://vexa-charts.org/2008/vx"
ROOM = 240  # px of the plot for all bars

xml.register_namespace("", NAMESPACE)
chart = xml.parse(sys.argv[1])
serie = chart.find(f".//{{{NAMESPACE}}}serie")

rows = list(csv.reader(sys.stdin))[1:]
for name, number in reversed(rows):  # lying bars begin at the bottom
    width = f"{0.75 * ROOM / len(rows):.0f}px"
    xml.SubElement(serie, f"{{{NAMESPACE}}}data-point", category=name, value=number, caption=number, width=width)

xml.indent(chart)
chart.write(sys.stdout.buffer, encoding="utf-8")
