' A small stand-in for a page server: Request, Response and Server as pages know them. The page's script follows,
' then EndPage. QueryText holds the query of the request.
Dim Request, Response, Server, Context

' What a request gives is an object; its default property is the text.
Class RequestItem
  Public Text
  Public Default Property Get Value
    Value = Text
  End Property
End Class

Class RequestStandIn
  Public Default Property Get Item(name)
    Set Item = QueryString(name)
  End Property
  Public Property Get QueryString(name)
    Dim found, start, finish
    Set found = New RequestItem
    start = InStr("&" & QueryText, "&" & name & "=")
    If start > 0 Then
      start = start + Len(name) + 1
      finish = InStr(start, QueryText & "&", "&")
      found.Text = Mid(QueryText, start, finish - start)
    End If
    Set QueryString = found
  End Property
End Class

Class ResponseStandIn
  Public ContentType
  Public Pending
  Public Sub Write(value)
    Pending = Pending & value
  End Sub
  Public Sub BinaryWrite(bytes)
    Pending = Pending & "binary " & VarType(bytes)
  End Sub
End Class

Class ServerStandIn
  Public Function CreateObject(programId)
    Set CreateObject = MakeObject(programId)
  End Function
  Public Function HTMLEncode(text)
    HTMLEncode = Replace(Replace(Replace(text & "", "&", "&amp;"), "<", "&lt;"), """", "&quot;")
  End Function
End Class

Class ContextStandIn
  Public Property Get Response
    Set Response = PageResponse()
  End Property
End Class

Function PageResponse
  Set PageResponse = Response
End Function

' A page object is told of the page that starts; others have no such method.
Function MakeObject(programId)
  Dim made
  Set made = CreateObject(programId)
  If programId = "Amortix2.GifChart" Then made.OnStartPage Context
  Set MakeObject = made
End Function

Sub EndPage
  WScript.Echo Response.Pending
  WScript.Echo "<!-- end " & Response.ContentType & " -->"
End Sub

Set Request = New RequestStandIn
Set Response = New ResponseStandIn
Set Server = New ServerStandIn
Set Context = New ContextStandIn
