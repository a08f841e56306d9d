Option Strict On
Imports System
Imports System.Reflection

''' <summary>A control whose members are called by name, because late binding in .NET Core 3.1 knows no COM.</summary>
Class Control
  Private Const as_hosts_do As BindingFlags = BindingFlags.InvokeMethod Or BindingFlags.GetProperty
  Private ReadOnly held As Object

  Sub New(name As String)
    held = Activator.CreateInstance(Type.GetTypeFromProgID(name, throwOnError:=True))
  End Sub

  Function Number(member As String, ParamArray arguments As Object()) As Integer
    Return Convert.ToInt32(Ask(member, arguments))
  End Function

  Function Flag(member As String, ParamArray arguments As Object()) As Boolean
    Return Convert.ToBoolean(Ask(member, arguments))
  End Function

  Function Text(member As String, ParamArray arguments As Object()) As String
    Return Convert.ToString(Ask(member, arguments))
  End Function

  ''' <summary>For members without a result, and for those whose result does not matter.</summary>
  Function Ask(member As String, ParamArray arguments As Object()) As Object
    Return held.GetType().InvokeMember(member, as_hosts_do, Nothing, held, arguments)
  End Function
End Class
