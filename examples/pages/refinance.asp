<%@ LANGUAGE="VBScript" %>
<% Option Explicit %>
<html>
<head><title>Is refinancing worth it?</title></head>
<body>
<%
' refinance.asp?balance=150000&payment=1200&rate=8&newrate=6.5&points=1&fees=1500&term=360&keep=60
Dim calculator, grid, currentLines, newLines
Set calculator = Server.CreateObject("Amortix2.Calculator")
calculator.RefinancingCalculator Request("balance"), Request("payment"), Request("rate"), Request("newrate"), _
    Request("points"), Request("fees"), Request("term"), 28, 4, Request("keep"), grid, currentLines, newLines
%>
<h1>The loan that you have against a new one</h1>
<table>
<tr><th></th><th>Current</th><th>New</th><th>Difference</th></tr>
<%
Dim captions, row, column
captions = Array("", "Monthly payment", "Paid up front", "Months", "Cost while the loan is kept, in today's money")
For row = 1 To UBound(grid, 1)
  Response.Write "<tr><td>" & captions(row) & "</td>"
  For column = 1 To UBound(grid, 2)
    Response.Write "<td>" & FormatNumber(grid(row, column), 2) & "</td>"
  Next
  Response.Write "</tr>" & vbCrLf
Next
%>
</table>
<p>The current loan runs for <%= UBound(currentLines, 1) %> more payments, the new one for
<%= UBound(newLines, 1) %>.</p>
</body>
</html>
