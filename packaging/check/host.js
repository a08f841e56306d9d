// Creates the three controls and asks each for its last error.
var said = [], names = ["ZORBWord", "ZORBOutlook", "OpenWriter"], controls = [];
for (var i = 0; i < names.length; ++i) {
  try {
    controls[i] = new ActiveXObject("ZORBOffice." + names[i]);
    said.push(names[i] + " " + controls[i].GetLastErrorNumber());
  } catch (failure) {
    said.push("no " + names[i]);
  }
}
WScript.Echo(said.join(", "));
