' A page script's way of calling, and of printing everything that comes back: one value a line, doubles so that
' no bit is lost. The calls follow below.
Option Explicit
Dim o, page
Dim v0, v1, v2, v3, v4, v5, v6, v7, v8, v9, v10, v11, v12, v13, v14, v15, v16, v17, v18, v19, v20, v21, v22

Class ResponseStandIn
  Public Sub BinaryWrite(bytes)
    WScript.Echo "R" & VarType(bytes)
  End Sub
End Class

Class PageStandIn
  Public Property Get Response
    Set Response = New ResponseStandIn
  End Property
End Class

Sub Start(number, className)
  WScript.Echo "#" & number
  Set o = CreateObject("Amortix2." & className)
  If className = "GifChart" Then o.OnStartPage page
  Err.Clear
End Sub

Sub Finish
  If Err.Number <> 0 Then WScript.Echo "!" & Err.Number
  Err.Clear
End Sub

Function Table(columns, cells)
  Dim t, i
  ReDim t((UBound(cells) + 1) \ columns - 1, columns - 1)
  For i = 0 To UBound(cells)
    t(i \ columns, i Mod columns) = cells(i)
  Next
  Table = t
End Function

Function Palette
  Dim t(255, 2), i
  For i = 0 To 255
    t(i, 0) = i
    t(i, 1) = 255 - i
    t(i, 2) = i \ 2
  Next
  Palette = t
End Function

Sub Show(name, value)
  WScript.Echo "=" & name
  ShowValue value
End Sub

Sub ShowValue(value)
  Select Case VarType(value)
    Case 0
      WScript.Echo "E"
    Case 1
      WScript.Echo "N"
    Case 2
      WScript.Echo "i" & value
    Case 3
      WScript.Echo "l" & value
    Case 5
      WScript.Echo "d" & Exact(value)
    Case 6
      WScript.Echo "c" & Exact(CDbl(value))
    Case 7
      WScript.Echo "t" & CLng(value)
    Case 8
      WScript.Echo "s" & Replace(value, vbLf, "\n")
    Case 11
      WScript.Echo "B" & CInt(value)
    Case 17
      WScript.Echo "y" & CInt(value)
    Case 8204
      ShowArray value
    Case Else
      WScript.Echo "? " & VarType(value)
  End Select
End Sub

Sub ShowArray(cells)
  Dim rows, columns, i, j
  rows = UBound(cells) - LBound(cells) + 1
  columns = ColumnsOf(cells)
  If columns = 0 Then
    WScript.Echo "a " & LBound(cells) & " " & rows
    For i = LBound(cells) To UBound(cells)
      ShowValue cells(i)
    Next
    Exit Sub
  End If
  WScript.Echo "a " & LBound(cells) & " " & rows & " " & LBound(cells, 2) & " " & columns
  For i = LBound(cells) To UBound(cells)
    For j = LBound(cells, 2) To UBound(cells, 2)
      ShowValue cells(i, j)
    Next
  Next
End Sub

Function ColumnsOf(cells)
  ColumnsOf = 0
  On Error Resume Next
  ColumnsOf = UBound(cells, 2) - LBound(cells, 2) + 1
  Err.Clear
End Function

' Cents where the value is exactly that, else its 53 bits and the power of two.
Function Exact(value)
  Dim cents, power, high, magnitude
  cents = value * 100
  If Abs(cents) < 1E15 Then
    If Int(cents) = cents Then
      If cents / 100 = value Then
        Exact = cents & "/100"
        Exit Function
      End If
    End If
  End If
  magnitude = Abs(value)
  power = 0
  Do While magnitude >= 9007199254740992
    magnitude = magnitude / 2
    power = power + 1
  Loop
  Do While magnitude < 4503599627370496
    magnitude = magnitude * 2
    power = power - 1
  Loop
  high = Int(magnitude / 134217728)
  Exact = Sgn(value) * high & "*" & Sgn(value) * (magnitude - high * 134217728) & "*" & power
End Function

Set page = New PageStandIn
WScript.Echo "today " & Year(Date) & "-" & Right("0" & Month(Date), 2) & "-" & Right("0" & Day(Date), 2)
On Error Resume Next
