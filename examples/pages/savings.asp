<%@ LANGUAGE="VBScript" %>
<% Option Explicit %>
<html>
<head><title>What will the savings come to?</title></head>
<body>
<%
' savings.asp?start=1/31/2001&balance=1000&deposit=100&years=2&rate=5
Dim calculator, endBalance, lines, line, column, query, table, chart, words, top, bottom, interval, alternative
Set calculator = Server.CreateObject("Amortix2.Calculator")
calculator.AmountSavedCalculator Request("start"), Request("balance"), Request("deposit"), 4, _
    Request("years"), Request("rate"), endBalance, lines
query = "start=" & Request("start") & "&balance=" & Request("balance") & "&deposit=" & Request("deposit") & _
    "&years=" & Request("years") & "&rate=" & Request("rate")

' What the image of savings_chart.asp shows: where its axis ends, and its first, last, least and largest value.
ReDim table(UBound(lines, 1), 1)
table(0, 0) = "Date"
table(0, 1) = "Balance"
For line = 1 To UBound(lines, 1)
  table(line, 0) = lines(line, 1)
  table(line, 1) = lines(line, 5)
Next
Set chart = Server.CreateObject("Amortix2.GifChart")
chart.AxisRange table, top, bottom, interval
Set words = Server.CreateObject("Amortix2.SvgChart")
words.AltFormatStr = "$#,##0.00"
words.AlternativeText table, "", "Balance by month", alternative
%>
<h1><%= FormatCurrency(endBalance) %> at the end</h1>
<table>
<tr>
<td valign="top" align="right"><%= FormatCurrency(top, 0) %></td>
<td rowspan="2"><img src="savings_chart.asp?<%= Server.HTMLEncode(query) %>" alt="<%= alternative %>"></td>
</tr>
<tr><td valign="bottom" align="right"><%= FormatCurrency(bottom, 0) %></td></tr>
</table>
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
