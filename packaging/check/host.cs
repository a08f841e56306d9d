// Creates the three controls and asks each for its last error; then has .NET's importer read the type library and counts the
// members of the default interfaces that it makes of it.
using System;
using System.Collections.Generic;
using System.Reflection;
using System.Reflection.Emit;
using System.Runtime.InteropServices;
using System.Runtime.InteropServices.ComTypes;

class Sink : ITypeLibImporterNotifySink {
  public void ReportEvent(ImporterEventKind kind, int code, string message) {}
  public Assembly ResolveRef(object library) { return Assembly.GetExecutingAssembly(); }
}

static class Host {
  static readonly string[] names = {"ZORBWord", "ZORBOutlook", "OpenWriter"};

  [DllImport("oleaut32.dll", CharSet = CharSet.Unicode, PreserveSig = false)]
  static extern void LoadTypeLibEx(string file, int kind, [MarshalAs(UnmanagedType.Interface)] out ITypeLib library);

  [STAThread]
  static void Main(string[] arguments) {
    var said = new List<string>();
    foreach (var name in names) {
      var type = Type.GetTypeFromProgID("ZORBOffice." + name, true);
      // With one control it is a method, with the others a property get.
      said.Add(name + " " + type.InvokeMember("GetLastErrorNumber", BindingFlags.InvokeMethod | BindingFlags.GetProperty, null,
                                              Activator.CreateInstance(type), null));
    }
    Console.WriteLine(string.Join(", ", said));
    try {
      Console.WriteLine("importer " + Import(arguments[0]));
    } catch (Exception failure) {
      Console.WriteLine("importer: " + failure.GetType().Name + " " + failure.Message);
    }
  }

  static string Import(string file) {
    var said = new List<string>();
    ITypeLib library;
    LoadTypeLibEx(file, 2, out library);
    AssemblyBuilder imported =
        new TypeLibConverter().ConvertTypeLibToAssembly(library, "imported.dll", 0, new Sink(), null, null, null, null);
    foreach (var name in names) {
      int count = 0;
      foreach (var type in imported.GetModules()[0].GetTypes())
        if (type.Name == "_" + name) count = type.GetMethods().Length;
      said.Add(name + " " + count);
    }
    return string.Join(", ", said);
  }
}
