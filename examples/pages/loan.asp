<%@ LANGUAGE="VBScript" %>
<% Option Explicit %>
<html>
<head><title>What does the loan cost?</title>
<link rel="stylesheet" href="amortix2-chart.css"></head>
<body>
<%
' loan.asp?amount=200000&months=360&rate=6.5 - leave one of amount, payment, months and rate out, and it is found.
Dim loan, amount, payment, months, rate, totalPaid, totalInterest, schedule
Set loan = Server.CreateObject("Amortix2.Calculator")
loan.SimpleLoanCalculator "", Request.QueryString("amount"), Request.QueryString("payment"), _
    Request.QueryString("months"), Request.QueryString("rate"), _
    amount, payment, months, rate, totalPaid, totalInterest, schedule
%>
<h1>A loan of <%= FormatCurrency(amount) %></h1>
<p><%= months %> payments of <b><%= FormatCurrency(payment) %></b> at <%= rate %> % a year. You pay
<%= FormatCurrency(totalPaid) %> in all, <%= FormatCurrency(totalInterest) %> of it interest.</p>

<h2>Principal and interest by year</h2>
<%
' Lines 0 (opening) to the last payment; columns from 1: date, payment, principal, interest, balance.
Dim years, table, line, year, chart, html, i
years = Int((UBound(schedule, 1) + 11) / 12)
ReDim table(years, 2)
table(0, 0) = "Year"
For year = 1 To years
  table(year, 0) = "" & year
  table(year, 1) = 0
  table(year, 2) = 0
Next
For line = 1 To UBound(schedule, 1)
  year = Int((line + 11) / 12)
  table(year, 1) = table(year, 1) + schedule(line, 3)
  table(year, 2) = table(year, 2) + schedule(line, 4)
Next

Set chart = Server.CreateObject("Amortix2.BarChart")
chart.SetGraphDimensions 240, 420
chart.StackChart table, "images/space.gif", Array("images/back.gif", "images/blue.gif", "images/red.gif"), _
    Array("", "Principal", "Interest"), Array("", "Where the money goes", ""), "Year", "Paid", html
Response.Write "<div class=""amortix2-chart"">"
For i = LBound(html) To UBound(html)
  Response.Write html(i) & vbCrLf
Next
%>
</div>
<h2>Schedule</h2>
<table>
<tr><th>Date</th><th>Payment</th><th>Principal</th><th>Interest</th><th>Balance</th></tr>
<%
For line = 0 To UBound(schedule, 1)
  Response.Write "<tr><td>" & schedule(line, 1) & "</td>"
  For i = 2 To 5
    Response.Write "<td>" & FormatNumber(schedule(line, i), 2) & "</td>"
  Next
  Response.Write "</tr>" & vbCrLf
Next
%>
</table>
</body>
</html>
