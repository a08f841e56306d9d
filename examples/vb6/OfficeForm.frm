VERSION 5.00
Object = "{8698DD46-FA38-4FD0-8336-FA997FB10D92}#1.0#0"; "ZORBOffice.ocx"
Begin VB.Form OfficeForm 
   Caption         =   "ZORBOffice"
   ClientHeight    =   4560
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   6960
   LinkTopic       =   "OfficeForm"
   ScaleHeight     =   4560
   ScaleWidth      =   6960
   StartUpPosition =   3  'Windows Default
   Begin VB.TextBox Arguments 
      Height          =   855
      Left            =   120
      MultiLine       =   -1  'True
      TabIndex        =   0
      Top             =   120
      Width           =   6735
   End
   Begin VB.CommandButton LetterButton 
      Caption         =   "&Letter"
      Height          =   375
      Left            =   120
      TabIndex        =   1
      Top             =   1080
      Width           =   1575
   End
   Begin VB.CommandButton TableButton 
      Caption         =   "&Table"
      Height          =   375
      Left            =   1800
      TabIndex        =   2
      Top             =   1080
      Width           =   1575
   End
   Begin VB.CommandButton AppointmentsButton 
      Caption         =   "&Appointments"
      Height          =   375
      Left            =   3480
      TabIndex        =   3
      Top             =   1080
      Width           =   1575
   End
   Begin VB.TextBox Results 
      Height          =   2775
      Left            =   120
      Locked          =   -1  'True
      MultiLine       =   -1  'True
      ScrollBars      =   3  'Both
      TabIndex        =   4
      Top             =   1680
      Width           =   6735
   End
   Begin ZORBOffice50.ZORBWord ZORBWord1 
      Height          =   375
      Left            =   5400
      Top             =   1080
      Width           =   495
   End
   Begin ZORBOffice50.ZORBOutlook ZORBOutlook1 
      Height          =   375
      Left            =   6120
      Top             =   1080
      Width           =   495
   End
End
Attribute VB_Name = "OfficeForm"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

' The box "Arguments" takes one argument a line: TEMPLATE, OUTPUT and NAME; DOCUMENT; or DAY.
Private Sub LetterButton_Click()
  RunWithWord "Letter"
End Sub

Private Sub TableButton_Click()
  RunWithWord "Table"
End Sub

Private Sub AppointmentsButton_Click()
  On Error GoTo Failed
  Results.Text = ""
  If Not ZORBOutlook1.StartOutlook Then Err.Raise vbObjectError + 513, , ZORBOutlook1.GetLastErrorDescription
  If Argument(0) = "" Then Arguments.Text = Format(Date + 1, "yyyy-mm-dd")
  Results.Text = Appointments(ZORBOutlook1, Argument(0))
  Exit Sub
Failed:
  Results.Text = Err.Description
End Sub

Private Sub RunWithWord(ByVal job As String)
  On Error GoTo Failed
  Results.Text = ""
  If ZORBWord1.Start <> 1 Then Err.Raise vbObjectError + 513, , "Word does not start"
  If job = "Letter" Then
    Results.Text = Letter(ZORBWord1, Argument(0), Argument(1), Argument(2))
  Else
    Results.Text = Table(ZORBWord1, Argument(0))
  End If
Failed:
  If Err.Number <> 0 Then Results.Text = Err.Description
  ' Word stays behind unless it is told to quit. Where it could not be created, this raises "Object required".
  On Error Resume Next
  ZORBWord1.StopWord True
End Sub

Private Function Argument(ByVal number As Long) As String
  Dim lines() As String
  lines = Split(Arguments.Text, vbCrLf)
  If number <= UBound(lines) Then Argument = lines(number)
End Function
