<%@ LANGUAGE="VBScript" %><%
Option Explicit
' The image of savings.asp: the balance as a line, sent by the chart itself. Nothing else may be written.
Dim calculator, endBalance, lines, line, table, palette(255, 2), chart, i
Set calculator = Server.CreateObject("Amortix2.Calculator")
calculator.AmountSavedCalculator Request("start"), Request("balance"), Request("deposit"), 4, _
    Request("years"), Request("rate"), endBalance, lines
ReDim table(UBound(lines, 1), 1)
For line = 1 To UBound(lines, 1)
  table(line, 1) = lines(line, 5)
Next
For i = 0 To 255
  palette(i, 0) = 0
  palette(i, 1) = 0
  palette(i, 2) = 128
Next

Response.ContentType = "image/gif"
Set chart = Server.CreateObject("Amortix2.GifChart")
chart.SetGraphDimensions 200, 320
chart.LineChart table, palette, ""
%>