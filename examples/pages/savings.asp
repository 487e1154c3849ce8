<%@ LANGUAGE="VBScript" %>
<% Option Explicit %>
<html>
<head><title>What will the savings come to?</title></head>
<body>
<%
' savings.asp?start=1/31/2001&balance=1000&deposit=100&years=2&rate=5
Dim calculator, endBalance, lines, line, column, query
Set calculator = Server.CreateObject("Amortix2.Calculator")
calculator.AmountSavedCalculator Request("start"), Request("balance"), Request("deposit"), 4, _
    Request("years"), Request("rate"), endBalance, lines
query = "start=" & Request("start") & "&balance=" & Request("balance") & "&deposit=" & Request("deposit") & _
    "&years=" & Request("years") & "&rate=" & Request("rate")
%>
<h1><%= FormatCurrency(endBalance) %> at the end</h1>
<p><img src="savings_chart.asp?<%= Server.HTMLEncode(query) %>" alt="Balance by month"></p>
<table>
<tr><th>Date</th><th>Deposit</th><th>Interest</th><th>Growth</th><th>Balance</th></tr>
<%
For line = 1 To UBound(lines, 1)
  Response.Write "<tr><td>" & lines(line, 1) & "</td>"
  For column = 2 To 5
    Response.Write "<td>" & FormatNumber(lines(line, column), 2) & "</td>"
  Next
  Response.Write "</tr>" & vbCrLf
Next
%>
</table>
</body>
</html>
