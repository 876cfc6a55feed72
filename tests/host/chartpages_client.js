// A script host's view of ChartPages: late-bound calls by ProgID, as JScript makes them.
// Run by script_client.sh with the component registered; the exit code counts the mismatches.
var failures = 0;

function check(what, actual, expected) {
  if (actual === expected) {
    WScript.Echo("ok   " + what);
  } else {
    WScript.Echo("FAIL " + what + ": got " + actual + ", expected " + expected);
    failures++;
  }
}

try {
  var pages = new ActiveXObject("OrvChartDlgs.ChartPages");
  var doc = new ActiveXObject("Microsoft.XMLDOM");

  doc.loadXML("<Chart><Lines/></Chart>");
  check("DoModal of a document without PropertySheet", pages.DoModal(doc), 2);
  doc.loadXML("<Chart><PropertySheet Name=\"lsps\"/></Chart>");
  check("DoModal of Name lsps (names are case-sensitive)", pages.DoModal(doc), 2);
  check("the host's document is left as it was", doc.xml.indexOf("<PropertySheet Name=\"lsps\"/>") >= 0, true);
  check("DoModal(null)", pages.DoModal(null), 2);
  check("DoModal2(null, null)", pages.DoModal2(null, null), 2);
  check("TerminatePage(3)", pages.TerminatePage(3), 0);

  var refused = false;
  try {
    pages.NoSuchMethod();
  } catch (e) {
    refused = true;
  }
  check("an unknown member is refused", refused, true);
} catch (e) {
  WScript.Echo("FAIL unexpected error " + (e.number >>> 0).toString(16) + ": " + e.description);
  failures++;
}

WScript.Quit(failures);
